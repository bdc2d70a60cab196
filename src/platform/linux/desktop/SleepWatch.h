#pragma once

#include <QObject>

#include <functional>

namespace tembra {

// Tells that the machine is about to sleep, or that it woke, as the login manager announces it on the system
// bus. Silent where there is none.
class SleepWatch final : public QObject {
    Q_OBJECT

public:
    explicit SleepWatch(std::function<void(bool isAboutToSleep)> onChange);

private Q_SLOTS:
    void prepareForSleep(bool isAboutToSleep);

private:
    const std::function<void(bool)> m_onChange;
};

} // namespace tembra
