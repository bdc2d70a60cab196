#pragma once

#include "base/Scheduler.h"
#include "platform/Displays.h"
#include "platform/linux/desktop/CameraHousing.h"
#include "platform/linux/desktop/Observers.h"

#include <QHash>
#include <QObject>

QT_BEGIN_NAMESPACE
class QScreen;
QT_END_NAMESPACE

namespace tembra {

// The screens as Qt sees them. What changes together is told once, after it has settled.
class QtDisplays final : public Displays {
public:
    explicit QtDisplays(Scheduler &scheduler, std::optional<CameraHousing> camera = {});

    [[nodiscard]] std::vector<DisplayFacts> connected() const override;
    [[nodiscard]] std::unique_ptr<Observation> observe(std::function<void()> onChange) override;

private:
    void addScreen(const QScreen *screen);
    void removeScreen(const QScreen *screen);
    void expectChange();
    void tellChange();
    [[nodiscard]] DisplayFacts facts(const QScreen &screen) const;

    Scheduler &m_scheduler;
    const std::optional<CameraHousing> m_camera;
    QHash<const QScreen *, std::uint32_t> m_identifiers;
    std::uint32_t m_lastIdentifier = 0;
    std::vector<DisplayFacts> m_told;
    WorkItem m_tell;
    Observers<Observation> m_observers;
    // Ends the connections first.
    QObject m_context;
};

} // namespace tembra
