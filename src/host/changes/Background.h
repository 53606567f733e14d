// Work on copies of texts while the window goes on.
#pragma once

#include <QFuture>
#include <QPromise>
#include <QThreadPool>
#include <memory>
#include <new>
#include <utility>

namespace tessel {

/// Runs `work` on another thread; it touches nothing that others have. Its result comes by
/// QFuture::then on the thread of the context given there. Without memory for it there is none.
template <class Work>
auto InBackground(Work work) {
  using Result = decltype(work());
  auto promise = std::make_shared<QPromise<Result>>();
  QFuture<Result> future = promise->future();
  promise->start();
  QThreadPool::globalInstance()->start(
      [promise = std::move(promise), work = std::move(work)]() mutable {
        try {
          promise->addResult(work());
          promise->finish();
        } catch (const std::bad_alloc&) {  // it is cancelled when the promise goes
        }
      });
  return future;
}

}  // namespace tessel
