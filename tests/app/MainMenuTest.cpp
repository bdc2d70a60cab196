#include "app/MainMenu.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

// A window that answers one command, around a field that answers its own.
class Window final : public QWidget {
    Q_OBJECT

public:
    Window() {
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(&field);
        show();
        activateWindow();
        field.setFocus();
        QApplication::processEvents();
    }

    Q_INVOKABLE void saveEdit() { ++saves; }

    QLineEdit field;
    int saves = 0;
};

} // namespace

TEST(MainMenu, itemsGoToTheNearestResponder) {
    const MainMenu menu;
    Window window;
    ASSERT_EQ(QApplication::focusWidget(), &window.field);

    window.field.setText(QStringLiteral("text"));
    menu.action(QStringLiteral("selectAll"))->trigger();
    EXPECT_EQ(window.field.selectedText(), QStringLiteral("text")) << "the focused field comes first";
    menu.action(QStringLiteral("saveEdit"))->trigger();
    EXPECT_EQ(window.saves, 1) << "what the field does not answer goes to its window";
    menu.action(QStringLiteral("zoomInClicked"))->trigger(); // nobody answers: nothing happens
}

TEST(MainMenu, whatNobodyAnswersIsDisabledOnlyWhileTheMenuIsOpen) {
    const MainMenu menu;
    Window window;
    QMenu *fileMenu = menu.menus().at(1);
    const QAction *save = menu.action(QStringLiteral("saveEdit"));
    const QAction *saveCopy = menu.action(QStringLiteral("saveCopy"));

    Q_EMIT fileMenu->aboutToShow();
    EXPECT_TRUE(save->isEnabled());
    EXPECT_FALSE(saveCopy->isEnabled());
    Q_EMIT fileMenu->aboutToHide();
    EXPECT_TRUE(saveCopy->isEnabled());
}

TEST(MainMenu, programItemsAreAnsweredByTheProgram) {
    MainMenu menu;
    int quits = 0;
    QObject::connect(&menu, &MainMenu::terminate, [&] { ++quits; });
    QAction *quit = menu.action(QStringLiteral("terminate"));
    EXPECT_TRUE(quit->shortcut().isEmpty()) << "quitting has no key equivalent";
    quit->trigger();
    EXPECT_EQ(quits, 1);
}

#include "MainMenuTest.moc"
