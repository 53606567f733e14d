#include "lsp/Server.h"

#include <algorithm>
#include <new>
#include <utility>

#include "base/RuntimeError.h"
#include "lsp/Methods.h"

namespace tessel::lsp {
namespace {

const Json kNothing;

const Json& ParamsOf(const Json& message) {
  const Json* params = OptionalMember(message, "params");
  return params == nullptr ? kNothing : *params;
}

bool IsId(const Json& id) { return id.is_string() || id.is_number_integer(); }

/// A request, a notification or an answer.
bool IsMessage(const Json& message) {
  if (!message.is_object()) return false;
  const auto method = message.find("method");
  const auto id = message.find("id");
  if (id != message.end() && !IsId(*id) && !id->is_null()) return false;
  if (method == message.end()) return message.contains("result") || message.contains("error");
  return method->is_string() && (id == message.end() || IsId(*id));
}

bool IsNotification(const Json& message, const char* method) {
  return !message.contains("id") && message.contains("method") && message["method"] == method;
}

}  // namespace

void Server::AnswerWith(const Json& id, std::string_view result) {
  std::string answer = R"({"jsonrpc":"2.0","id":)" + Dump(id) + ",\"result\":";
  answer.reserve(answer.size() + result.size() + 1);
  (answer += result) += '}';
  send_(answer);
}

void Server::AnswerError(const Json& id, ErrorCode code, const std::string& sentence) {
  send_(Dump({{"jsonrpc", "2.0"},
              {"id", id},
              {"error", {{"code", static_cast<int>(code)}, {"message", sentence}}}}));
}

void Server::Take(std::string_view message) {
  Json json = Json::parse(message, nullptr, false);
  if (json.is_discarded()) {
    AnswerError(nullptr, ErrorCode::kParseError, "The message is no JSON.");
  } else if (!IsMessage(json)) {
    AnswerError(nullptr, ErrorCode::kInvalidRequest, "The message is no request.");
  } else if (IsNotification(json, "$/cancelRequest")) {
    Cancel(ParamsOf(json));
  } else {
    waiting_.push_back(std::move(json));
  }
}

void Server::Cancel(const Json& params) {
  const Json* id = OptionalMember(params, "id");
  if (id == nullptr) return;
  const auto found = std::ranges::find_if(waiting_, [&](const Json& message) {
    const Json* own = OptionalMember(message, "id");
    return own != nullptr && message.contains("method") && *own == *id;
  });
  if (found == waiting_.end()) return;
  waiting_.erase(found);
  AnswerError(*id, ErrorCode::kRequestCancelled, "The request was cancelled.");
}

void Server::Work() {
  const Json message = std::move(waiting_.front());
  waiting_.pop_front();
  if (state_ != State::kEnded) WorkOn(message);
}

void Server::WorkOn(const Json& message) {
  const auto method = message.find("method");
  if (method == message.end()) return;  // nobody waits for the answers of the client
  const auto id = message.find("id");
  if (id == message.end()) {
    TakeNotification(*method, ParamsOf(message));
  } else {
    AnswerRequest(*id, *method, ParamsOf(message));
  }
}

void Server::AnswerRequest(const Json& id, const std::string& method, const Json& params) try {
  const std::string result = ResultOf(method, params);
  AnswerWith(id, result);
} catch (const std::bad_alloc&) {
  throw;
} catch (const ResponseError& error) {
  AnswerError(id, error.Code(), error.what());
} catch (const RuntimeError& error) {
  AnswerError(id, ErrorCode::kRequestFailed, error.what());
} catch (const std::exception& error) {
  AnswerError(id, ErrorCode::kInternalError, error.what());
}

void Server::RefuseOutOfOrder(const std::string& method) const {
  if (state_ == State::kShutDown) {
    throw ResponseError(ErrorCode::kInvalidRequest, "The server has been shut down.");
  }
  const bool isFirst = method == "initialize";
  if (state_ == State::kFresh && !isFirst) {
    throw ResponseError(ErrorCode::kServerNotInitialized, "The server is not initialized.");
  }
  if (state_ == State::kRunning && isFirst) {
    throw ResponseError(ErrorCode::kInvalidRequest, "The server is initialized already.");
  }
}

std::string Server::ResultOf(const std::string& method, const Json& params) {
  RefuseOutOfOrder(method);
  if (method == "shutdown") {
    state_ = State::kShutDown;
    shutDown_ = true;
    return "null";
  }
  const RequestHandler answer = AnswerTo(method);
  if (answer == nullptr) {
    throw ResponseError(ErrorCode::kMethodNotFound, "There is no request \"" + method + "\".");
  }
  std::string result = answer(session_, params);
  if (state_ == State::kFresh) state_ = State::kRunning;
  return result;
}

void Server::TakeNotification(const std::string& method, const Json& params) try {
  if (method == "exit") state_ = State::kEnded;
  const NotificationHandler take = state_ == State::kRunning ? TakerOf(method) : nullptr;
  if (take != nullptr) take(session_, params);
} catch (const std::bad_alloc&) {
  throw;
} catch (const std::exception& error) {
  session_.Log(method + ": " + error.what());
}

}  // namespace tessel::lsp
