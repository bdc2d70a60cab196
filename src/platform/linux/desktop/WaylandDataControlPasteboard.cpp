#include "platform/linux/desktop/WaylandDataControlPasteboard.h"

#include "base/Background.h"
#include "platform/linux/desktop/ClipboardContent.h"
#include "platform/linux/desktop/PipeWriter.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QMimeData>

#include <algorithm>
#include <wayland-client-protocol.h>

namespace tembra {

namespace {

using Name = DataControlProtocol::Name;

const DataControlProtocol &protocol(Name name) {
    static const DataControlProtocol ext(Name::ext);
    static const DataControlProtocol wlr(Name::wlr);
    return name == Name::ext ? ext : wlr;
}

tl::unexpected<Error> refusal() {
    return failure(
        {Pasteboard::errorDomain, Pasteboard::refused,
         QCoreApplication::translate("Pasteboard", "The desktop did not let Tembra use the clipboard."),
         QString()});
}

} // namespace

// What other programs may ask of us, for as long as the compositor knows the source.
class WaylandDataControlPasteboard::OfferedContent {
public:
    OfferedContent(WaylandDataControlPasteboard &owner, const std::vector<Item> &items)
        : m_owner(owner), m_content(items), m_source(owner.m_protocol.source(owner.m_manager.get())) {
        static const DataControlProtocol::SourceListener listener{
            [](void *self, wl_proxy *, const char *format, int descriptor) {
                const auto &content = *static_cast<OfferedContent *>(self);
                content.m_owner.send(content.m_content, QString::fromUtf8(format), descriptor);
            },
            [](void *self, wl_proxy *) {
                const auto &content = *static_cast<OfferedContent *>(self);
                content.m_owner.drop(&content);
            }};
        DataControlProtocol::listen(m_source.get(), listener, this);
        const QStringList formats = m_content.formats();
        for (const QString &format : formats)
            DataControlProtocol::offer(m_source.get(), format.toUtf8().constData());
    }

    [[nodiscard]] wl_proxy *source() const { return m_source.get(); }

private:
    WaylandDataControlPasteboard &m_owner;
    const ClipboardContent m_content;
    const DataControlProtocol::Source m_source;
};

std::unique_ptr<WaylandDataControlPasteboard> WaylandDataControlPasteboard::open(Scheduler &scheduler) {
    auto connection = WaylandConnection::open();
    if (!connection)
        return nullptr;
    for (const Name name : {Name::ext, Name::wlr}) {
        DataControlProtocol::Manager manager(connection->bind(protocol(name).manager()));
        if (!manager)
            continue;
        std::unique_ptr<WaylandDataControlPasteboard> pasteboard(new WaylandDataControlPasteboard(
            scheduler, std::move(connection), protocol(name), std::move(manager)));
        return pasteboard->watch() && pasteboard->m_connection->roundtrip() ? std::move(pasteboard) : nullptr;
    }
    return nullptr;
}

WaylandDataControlPasteboard::WaylandDataControlPasteboard(Scheduler &scheduler,
                                                           std::unique_ptr<WaylandConnection> connection,
                                                           const DataControlProtocol &protocol,
                                                           DataControlProtocol::Manager manager)
    : m_scheduler(scheduler),
      m_connection(std::move(connection)),
      m_protocol(protocol),
      m_manager(std::move(manager)) {}

WaylandDataControlPasteboard::~WaylandDataControlPasteboard() = default;

std::int64_t WaylandDataControlPasteboard::changeCount() {
    static_cast<void>(watch() && m_connection->roundtrip());
    return m_changeCount;
}

// Pasting follows a key that the shelf got, so it has the focus and may read as every program does.
const QMimeData *WaylandDataControlPasteboard::content() {
    return QGuiApplication::clipboard()->mimeData();
}

Result<void> WaylandDataControlPasteboard::writeObjects(const std::vector<Item> &items) {
    if (!watch())
        return refusal();
    const auto *const content = m_contents.emplace_back(std::make_unique<OfferedContent>(*this, items)).get();
    DataControlProtocol::setSelection(m_device.get(), content->source());
    const bool isDone = m_connection->roundtrip();
    const bool isOurs =
        std::ranges::count(m_contents, content, &std::unique_ptr<OfferedContent>::get) > 0 && m_device;
    if (isDone && isOurs)
        return {};
    drop(content);
    m_connection->flush();
    return refusal();
}

bool WaylandDataControlPasteboard::watch() {
    if (m_device)
        return true;
    const std::unique_ptr<wl_proxy, void (*)(wl_proxy *)> seat(m_connection->bind(wl_seat_interface),
                                                               wl_proxy_destroy);
    if (!seat)
        return false;
    m_device = m_protocol.device(m_manager.get(), seat.get());
    static const DataControlProtocol::DeviceListener listener{
        [](void *, wl_proxy *, wl_proxy *) {},
        [](void *self, wl_proxy *, wl_proxy *offer) {
            static_cast<WaylandDataControlPasteboard *>(self)->selectionChanged(offer);
        },
        // The seat is gone.
        [](void *self, wl_proxy *) { static_cast<WaylandDataControlPasteboard *>(self)->m_device.reset(); },
        [](void *, wl_proxy *, wl_proxy *offer) { DataControlProtocol::Offer{offer}.reset(); }};
    DataControlProtocol::listen(m_device.get(), listener, this);
    return true;
}

void WaylandDataControlPasteboard::selectionChanged(wl_proxy *offer) {
    ++m_changeCount;
    m_offer.reset(offer);
    if (onChanged)
        onChanged();
}

void WaylandDataControlPasteboard::send(const ClipboardContent &content, const QString &format,
                                        int descriptor) {
    performInBackground(
        m_queue, m_scheduler, m_generation.ticket(), [content, format] { return content.data(format); },
        [this, pipe = std::make_shared<Descriptor>(descriptor)](const QByteArray &bytes) {
            new PipeWriter(std::move(*pipe), bytes, &m_transfers);
        });
}

void WaylandDataControlPasteboard::drop(const OfferedContent *content) {
    std::erase_if(m_contents, [content](const auto &known) { return known.get() == content; });
}

} // namespace tembra
