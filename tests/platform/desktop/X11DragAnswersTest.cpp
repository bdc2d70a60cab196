#include "platform/linux/desktop/X11DragAnswers.h"

#include "support/EventLoop.h"

#include <QDrag>
#include <QMimeData>
#include <QWidget>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

// Another program that asks for what is dragged, as GTK 4 does.
class Asker {
public:
    Asker() {
        const xcb_screen_t *const screen = xcb_setup_roots_iterator(xcb_get_setup(m_xcb.get())).data;
        xcb_create_window(m_xcb.get(), 0, m_window, screen->root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                          screen->root_visual, 0, nullptr);
    }

    void ask(const X11Connection &atoms, const QByteArray &format) {
        m_property = atoms.atom("GDK_SELECTION_1");
        xcb_convert_selection(m_xcb.get(), m_window, atoms.atom("XdndSelection"), atoms.atom(format),
                              m_property, XCB_CURRENT_TIME);
        xcb_flush(m_xcb.get());
    }
    // What it was answered with; nothing as long as there is no answer.
    [[nodiscard]] std::optional<QByteArray> answer() {
        const X11Reply<xcb_generic_event_t> event(xcb_poll_for_event(m_xcb.get()));
        if (!event || (event->response_type & 0x7f) != XCB_SELECTION_NOTIFY)
            return std::nullopt;
        const X11Reply<xcb_get_property_reply_t> content(xcb_get_property_reply(
            m_xcb.get(),
            xcb_get_property(m_xcb.get(), true, m_window, m_property, XCB_GET_PROPERTY_TYPE_ANY, 0, 1024),
            nullptr));
        return QByteArray(static_cast<const char *>(xcb_get_property_value(content.get())),
                          xcb_get_property_value_length(content.get()));
    }

private:
    struct Disconnect {
        void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
    };
    const std::unique_ptr<xcb_connection_t, Disconnect> m_xcb{xcb_connect(nullptr, nullptr)};
    const xcb_window_t m_window = xcb_generate_id(m_xcb.get());
    xcb_atom_t m_property = XCB_ATOM_NONE;
};

} // namespace

TEST(X11DragAnswersTest, aProgramThatNamesNoTimeGetsTheFilesOfTheDragAndNothingElse) {
    const auto connection = X11Connection::open();
    const X11DragAnswers answers(connection);
    QWidget window;
    xcb_set_selection_owner(connection->xcb(), static_cast<xcb_window_t>(window.winId()),
                            connection->atom("XdndSelection"), XCB_CURRENT_TIME);
    Asker asker;
    const auto asked = [&](const QByteArray &format) {
        asker.ask(*connection, format);
        std::optional<QByteArray> answer;
        EXPECT_TRUE(eventually([&] { return (answer = asker.answer()).has_value(); }));
        return answer.value_or("none");
    };
    EXPECT_EQ(asked("text/uri-list"), "") << "nothing is dragged";

    const QByteArray uris = "file:///a%20b\r\nfile:///%FF\r\n";
    for (const QByteArray &content : {QByteArray("file:///earlier\r\n"), uris}) {
        auto *const drag = new QDrag(&window);
        auto *const data = new QMimeData;
        data->setData(QStringLiteral("text/uri-list"), content);
        drag->setMimeData(data);
    }
    EXPECT_EQ(asked("text/uri-list"), uris);
    EXPECT_EQ(asked("text/html"), "");
}
