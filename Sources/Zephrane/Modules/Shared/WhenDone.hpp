#pragma once

#include <QFuture>
#include <QFutureWatcher>
#include <QObject>

// Runs `handler` with the work's result on `context`'s thread, unless `context` is gone by then.
// (A continuation bound to a destroyed context object aborts in Qt 6.4; a watcher owned by the
// context simply dies with it.)
template <class T, class Handler> void whenDone(QObject* context, QFuture<T> work, Handler handler) {
    auto* watcher = new QFutureWatcher<T>(context);
    QObject::connect(watcher, &QFutureWatcherBase::finished, context,
                     [watcher, handler = std::move(handler)]() mutable {
                         watcher->deleteLater();
                         if constexpr (std::is_void_v<T>)
                             handler();
                         else
                             handler(watcher->result());
                     });
    watcher->setFuture(std::move(work));
}
