// JSON-RPC messages: what is read from them, and what goes wrong with them.
#pragma once

#include <cstdint>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tessel::lsp {

using Json = nlohmann::json;

/// The codes of the protocol.
enum class ErrorCode : std::int32_t {
  kParseError = -32700,
  kInvalidRequest = -32600,
  kMethodNotFound = -32601,
  kInvalidParams = -32602,
  kInternalError = -32603,
  kServerNotInitialized = -32002,
  kRequestCancelled = -32800,
  kRequestFailed = -32803,
};

/// Answers a request with an error: what() is a sentence for the user.
class ResponseError : public std::runtime_error {
 public:
  ResponseError(ErrorCode code, const std::string& sentence)
      : std::runtime_error(sentence), code_(code) {}

  ErrorCode Code() const { return code_; }

 private:
  ErrorCode code_;
};

/// A member of an object; one that is missing is a ResponseError, as is a wrong kind below.
const Json& Member(const Json& object, const char* name);
/// The same, but null where it is missing or says null.
const Json* OptionalMember(const Json& object, const char* name);
const std::string& TextMember(const Json& object, const char* name);
std::int64_t NumberMember(const Json& object, const char* name);
/// Whether a member that may be missing, in objects that may be missing, says true:
/// "workspace/applyEdit".
bool Says(const Json& object, const char* pointer);

/// As it is sent.
std::string Dump(const Json& json);

/// Adds to a text of JSON: large answers are written without a tree of values in between.
void AppendJson(std::string& out, std::int64_t number);
void AppendJson(std::string& out, std::string_view utf8);

}  // namespace tessel::lsp
