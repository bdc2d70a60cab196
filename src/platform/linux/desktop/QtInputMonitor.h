#pragma once

#include "platform/InputMonitor.h"
#include "platform/linux/desktop/Observers.h"

#include <QObject>

QT_BEGIN_NAMESPACE
class QMouseEvent;
QT_END_NAMESPACE

namespace tembra {

// Where the windowing system tells nothing about other programs' input: the events of this program's own
// windows.
class QtInputMonitor final : public QObject, public InputMonitor {
public:
    QtInputMonitor();

    [[nodiscard]] std::unique_ptr<Observation> observe(std::function<void(const Event &)> onEvent) override;
    [[nodiscard]] bool isForeignDragOffered() const override;
    [[nodiscard]] ScreenPoint pointer() const override;

    bool eventFilter(QObject *receiver, QEvent *event) override;

private:
    void updateFilter();
    void receive(const QMouseEvent &event);
    void report(Kind kind, const QMouseEvent &event);

    Observers<Observation, const Event &> m_observers;
};

} // namespace tembra
