// Work on copies of texts while the window goes on.
#pragma once

#include <QFutureWatcher>
#include <QPromise>
#include <QThreadPool>
#include <memory>
#include <new>
#include <utility>

namespace tessel {

/// Runs `work` on another thread; it touches nothing that others have. Then `use` gets the result
/// on the thread of `context`, unless that is gone by then, or there was no memory for it.
template <class Work, class Use>
void InBackground(QObject& context, Work work, Use use) {
  using Result = decltype(work());
  auto promise = std::make_shared<QPromise<Result>>();
  auto* watcher = new QFutureWatcher<Result>(&context);
  QObject::connect(watcher, &QFutureWatcherBase::finished, &context,
                   [watcher, use = std::move(use)]() mutable {
                     watcher->deleteLater();
                     if (watcher->future().resultCount() > 0) use(watcher->result());
                   });
  watcher->setFuture(promise->future());
  promise->start();
  QThreadPool::globalInstance()->start(
      [promise = std::move(promise), work = std::move(work)]() mutable {
        try {
          promise->addResult(work());
          promise->finish();
        } catch (const std::bad_alloc&) {  // it is cancelled when the promise goes
        }
      });
}

}  // namespace tessel
