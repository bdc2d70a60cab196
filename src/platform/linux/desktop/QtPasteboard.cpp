#include "platform/linux/desktop/QtPasteboard.h"

#include "platform/linux/desktop/ClipboardContent.h"
#include "platform/linux/desktop/X11Connection.h"
#include "platform/linux/desktop/X11DragAnswers.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QMimeData>

#include <utility>

namespace tembra {

namespace {

// Hands out the content's own bytes: Qt would encode images anew.
class OfferedMimeData final : public QMimeData {
public:
    explicit OfferedMimeData(ClipboardContent content) : m_content(std::move(content)) {}

    [[nodiscard]] QStringList formats() const override { return m_content.formats(); }
    [[nodiscard]] bool hasFormat(const QString &format) const override {
        return m_content.formats().contains(format);
    }

protected:
    [[nodiscard]] QVariant retrieveData(const QString &format, QMetaType) const override {
        return m_content.data(format);
    }

private:
    const ClipboardContent m_content;
};

} // namespace

QtPasteboard::QtPasteboard(std::shared_ptr<X11Connection> connection) : m_connection(std::move(connection)) {
    if (!m_connection) {
        QObject::connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, &m_context, [this] {
            ++m_changeCount;
            tellOfChange();
        });
        return;
    }
    m_watch = std::make_unique<X11ClipboardWatch>();
    m_watch->onChanged = [this] { tellOfChange(); };
    m_dragAnswers = std::make_unique<X11DragAnswers>(m_connection);
}

QtPasteboard::~QtPasteboard() = default;

void QtPasteboard::tellOfChange() {
    if (onChanged)
        onChanged();
}

std::int64_t QtPasteboard::changeCount() {
    return m_watch ? m_watch->changeCount() : m_changeCount;
}

const QMimeData *QtPasteboard::content() {
    return QGuiApplication::clipboard()->mimeData();
}

Result<void> QtPasteboard::writeObjects(const std::vector<Item> &items) {
    QGuiApplication::clipboard()->setMimeData(new OfferedMimeData(ClipboardContent(items)));
    if (isOwner())
        return {};
    return failure({Pasteboard::errorDomain,
                    Pasteboard::refused,
                    QCoreApplication::translate("Pasteboard", "The clipboard is in use by another program."),
                    {}});
}

bool QtPasteboard::isOwner() const {
    if (!m_connection)
        return QGuiApplication::clipboard()->ownsClipboard();
    return m_connection->owns(
        m_connection->selectionOwner(m_connection->atom(QByteArrayLiteral("CLIPBOARD"))));
}

} // namespace tembra
