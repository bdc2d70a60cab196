#include "editor/chrome/EditorToolAppearance.h"

#include <QCoreApplication>

namespace tembra {

EditorToolAppearance EditorToolAppearance::of(EditorTool tool) {
    const auto name = [](const char *text) { return QCoreApplication::translate("EditorTool", text); };
    switch (tool) {
    case EditorTool::select:
        return {name(QT_TRANSLATE_NOOP("EditorTool", "Select")), u'V', Icon::cursor};
    case EditorTool::arrow:
        return {name(QT_TRANSLATE_NOOP("EditorTool", "Arrow")), u'A', Icon::arrow};
    case EditorTool::pencil:
        return {name(QT_TRANSLATE_NOOP("EditorTool", "Pencil")), u'P', Icon::pencil};
    case EditorTool::crop:
        return {name(QT_TRANSLATE_NOOP("EditorTool", "Crop")), u'C', Icon::crop};
    case EditorTool::line:
        return {name(QT_TRANSLATE_NOOP("EditorTool", "Line")), u'L', Icon::line};
    case EditorTool::rectangle:
        return {name(QT_TRANSLATE_NOOP("EditorTool", "Rectangle")), u'R', Icon::rectangle};
    case EditorTool::ellipse:
        return {name(QT_TRANSLATE_NOOP("EditorTool", "Ellipse")), u'E', Icon::ellipse};
    case EditorTool::text:
        return {name(QT_TRANSLATE_NOOP("EditorTool", "Text")), u'T', Icon::text};
    case EditorTool::number:
        return {name(QT_TRANSLATE_NOOP("EditorTool", "Number")), u'N', Icon::number};
    case EditorTool::blur:
        return {name(QT_TRANSLATE_NOOP("EditorTool", "Blur")), u'B', Icon::blur};
    }
    Q_UNREACHABLE();
}

} // namespace tembra
