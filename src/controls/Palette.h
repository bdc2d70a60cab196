#pragma once

#include <QColor>

// The shelf's colours. It is dark whatever the desktop is.
namespace tembra::palette {

inline constexpr QColor panel{12, 12, 14};
inline constexpr QColor group{21, 22, 26};
inline constexpr QColor groupHovered{32, 32, 36};
inline constexpr QColor groupActive{41, 41, 45};
inline constexpr QColor field{23, 23, 25};
inline constexpr QColor menu{30, 30, 34};
inline constexpr QColor menuBorder{58, 58, 64};

inline constexpr QColor text{242, 242, 244};
inline constexpr QColor itemText{222, 222, 226};
inline constexpr QColor secondaryText{146, 146, 154};
inline constexpr QColor icon{152, 152, 160};
inline constexpr QColor iconActive{255, 255, 255};

inline constexpr QColor accent{43, 110, 236};
inline constexpr QColor onAccent{255, 255, 255};
inline constexpr QColor selection{59, 130, 246, 46};
inline constexpr QColor textSelection{44, 80, 135};
inline constexpr QColor highlight{255, 255, 255, 15};
inline constexpr QColor focusRing{96, 156, 255};

inline constexpr QColor pinBadge{248, 189, 70};
inline constexpr QColor onPinBadge{58, 40, 8};

inline constexpr QColor previewBorder{255, 255, 255, 38};
inline constexpr QColor scrollerKnob{255, 255, 255, 62};
inline constexpr QColor scrollerKnobActive{255, 255, 255, 110};

inline constexpr QColor button{241, 241, 243};
inline constexpr QColor buttonHovered{255, 255, 255};
inline constexpr QColor buttonPressed{208, 208, 212};
inline constexpr QColor onButton{17, 17, 19};
inline constexpr QColor plainButtonHovered{54, 54, 59};

} // namespace tembra::palette
