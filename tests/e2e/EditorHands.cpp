#include "EditorHands.h"

#include <QJsonArray>

namespace tembra {

namespace {

QString button(const char *action) {
    return QString::fromLatin1(action);
}

} // namespace

QJsonObject EditorHands::status() const {
    return tembra().status()[u"editor"].toObject();
}

bool EditorHands::waitFor(const std::function<bool(const QJsonObject &)> &wish) const {
    return tembra().waitFor(
        [&wish](const QJsonObject &status) { return wish(status[u"editor"].toObject()); });
}

bool EditorHands::open(const QString &path) const {
    return tembra().command({QStringLiteral("edit"), path}).exitStatus == 0 && isShown(path);
}

bool EditorHands::isShown(const QString &path) const {
    return waitFor([&path](const QJsonObject &editor) {
        return editor[u"path"].toString() == path && editor[u"fullImage"].toBool() &&
               !editor[u"busy"].toBool();
    });
}

bool EditorHands::isClosed() const {
    return waitFor([](const QJsonObject &editor) { return !editor[u"open"].toBool(); });
}

bool EditorHands::hasAnnotations(int count) const {
    return waitFor([count](const QJsonObject &editor) { return editor[u"annotations"].toInt() == count; });
}

bool EditorHands::says(const QString &sentence) const {
    return waitFor(
        [&sentence](const QJsonObject &editor) { return editor[u"message"].toString() == sentence; });
}

bool EditorHands::save() const {
    press({QStringLiteral("ctrl+s")});
    return isSaved();
}

bool EditorHands::isSaved() const {
    return waitFor(
        [](const QJsonObject &editor) { return !editor[u"dirty"].toBool() && !editor[u"busy"].toBool(); });
}

// Keys may be told to assistive programs first, and come after what the pointer does next.
bool EditorHands::take(const char *letter, const char *tool) const {
    press({QString::fromLatin1(letter)});
    return waitFor([tool](const QJsonObject &editor) {
        return editor[u"tool"].toString() == QString::fromLatin1(tool);
    });
}

void EditorHands::click(QPointF point, const QString &number) const {
    xdotool(moveTo(point, status()) + QStringList{button("click"), number});
}

void EditorHands::doubleClick(QPointF point) const {
    xdotool(moveTo(point, status()) + QStringList{button("click"), QStringLiteral("--repeat"),
                                                  QStringLiteral("2"), QStringLiteral("--delay"),
                                                  QStringLiteral("20"), QStringLiteral("1")});
}

void EditorHands::drag(std::initializer_list<QPointF> points) const {
    const QJsonObject editor = status();
    QStringList words;
    for (const QPointF point : points) {
        words += moveTo(point, editor);
        if (words.size() == 3)
            words += {button("mousedown"), QStringLiteral("1")};
    }
    xdotool(words + QStringList{button("mouseup"), QStringLiteral("1")});
}

void EditorHands::makeRoomBelow() const {
    xdotool({QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--name"),
             QStringLiteral("^Screenshot from"), QStringLiteral("windowmove"), QStringLiteral("0"),
             QStringLiteral("0"), QStringLiteral("windowsize"), QStringLiteral("--sync"),
             QStringLiteral("1200"), QStringLiteral("480")});
}

QStringList EditorHands::moveTo(QPointF point, const QJsonObject &editor) const {
    const auto pair = [](const QJsonValue &array) {
        return QPointF(array[0].toDouble(), array[1].toDouble());
    };
    const QPointF place =
        pair(editor[u"frame"]) + pair(editor[u"image"]) + point * editor[u"zoom"].toDouble();
    return moveWords(place.toPoint());
}

} // namespace tembra
