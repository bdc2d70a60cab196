#include "platform/linux/desktop/CanberraSounds.h"

namespace tembra {

CanberraSounds::CanberraSounds(EventSoundSetting setting) : m_setting(std::move(setting)) {}

CanberraSounds::~CanberraSounds() = default;

void CanberraSounds::play(Event) {}

} // namespace tembra
