// A session by the rules of JSON-RPC and of the protocol: what may come when, and who answers it.
#pragma once

#include <deque>
#include <string>
#include <string_view>

#include "lsp/features/Session.h"

namespace tessel::lsp {

/// Takes messages as they come and does their work one by one. It knows no streams, no clock and no
/// threads.
class Server {
 public:
  Server(Resources resources, const Session::Send& send)
      : send_(send), session_(std::move(resources), send) {}

  /// A message has come. What cannot be read is answered at once, as is a request that the client
  /// cancels while it waits here.
  void Take(std::string_view message);
  std::size_t Waiting() const { return waiting_.size(); }
  /// Does the work of the oldest message that waits.
  void Work();

  bool HasEnded() const { return state_ == State::kEnded; }
  /// 0 where the client had asked to shut down before, else 1.
  int ExitStatus() const { return shutDown_ ? 0 : 1; }
  /// No more messages come.
  void EndOfInput() { state_ = State::kEnded; }

  Session& Current() { return session_; }

 private:
  enum class State : std::uint8_t { kFresh, kRunning, kShutDown, kEnded };

  void AnswerWith(const Json& id, std::string_view result);
  void AnswerError(const Json& id, ErrorCode code, const std::string& sentence);
  void Cancel(const Json& params);
  void WorkOn(const Json& message);
  void AnswerRequest(const Json& id, const std::string& method, const Json& params);
  std::string ResultOf(const std::string& method, const Json& params);
  void TakeNotification(const std::string& method, const Json& params);
  void RefuseOutOfOrder(const std::string& method) const;

  Session::Send send_;
  Session session_;
  State state_ = State::kFresh;
  bool shutDown_ = false;
  std::deque<Json> waiting_;
};

}  // namespace tessel::lsp
