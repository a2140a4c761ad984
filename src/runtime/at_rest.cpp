// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/at_rest.h"

#include <QAbstractEventDispatcher>
#include <QThread>

namespace orvalis {

namespace {

class Remains final : public QObject {
public:
    Remains(std::shared_ptr<void> object, QObject& keeper)
        : QObject(&keeper)
        , m_object(std::move(object)) {}

private:
    std::shared_ptr<void> m_object;
};

bool inNestedLoop() {
    return QThread::currentThread()->loopLevel() > 1;
}

} // namespace

void deleteAtRest(std::shared_ptr<void> object, QObject& keeper) {
    auto* remains = new Remains(std::move(object), keeper);
    if (!inNestedLoop()) {
        remains->deleteLater();
        return;
    }
    // A deferred deletion would be carried out by the nested loop. A loop that is about to wait has
    // no handler above it.
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                     remains, [remains] {
                         if (!inNestedLoop())
                             delete remains;
                     });
}

} // namespace orvalis
