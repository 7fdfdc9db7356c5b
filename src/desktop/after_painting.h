#pragma once

#include <QObject>
#include <QTimer>

namespace brindlepage {

// Milliseconds after which a screen that was turned to has been painted.
inline constexpr int kUntilPainted = 50;

// For what takes a while to clear away: not before what comes next is painted.
inline void DeleteAfterPainting(QObject* object) {
  QTimer::singleShot(2 * kUntilPainted, object, &QObject::deleteLater);
}

}  // namespace brindlepage
