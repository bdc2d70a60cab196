#include "app/CommandLine.h"
#include "platform/linux/ApplicationAdaptor.h"

#include <QSettings>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

// A command as the running program gets it: its name, then its arguments.
QStringList asSent(const CommandLine &line, const QString &name) {
    QStringList words{name};
    for (const QString &argument : {line.tab, line.page}) {
        if (!argument.isEmpty())
            words += argument;
    }
    return words;
}

} // namespace

TEST(DesktopEntry, hasTheSameActionsOverDBusAndOnTheCommandLine) {
    const QString file = QString::fromUtf8(TEMBRA_DESKTOP_ENTRY);
    QSettings entry(file, QSettings::IniFormat);
    // Semicolons begin comments there, so the list is taken from the groups.
    QStringList actions;
    for (const QString &group : entry.childGroups()) {
        if (group.startsWith(u"Desktop Action "))
            actions += group.mid(15);
    }
    ASSERT_FALSE(actions.isEmpty());
    std::vector<QStringList> heard;
    QObject object;
    ApplicationAdaptor adaptor(&object, [&](const QString &command, const QStringList &arguments) {
        heard.push_back(QStringList{command} + arguments);
        return Result<QString>(QString());
    });
    for (const QString &action : actions) {
        QStringList words =
            entry.value(QStringLiteral("Desktop Action %1/Exec").arg(action)).toString().split(u' ');
        EXPECT_EQ(words.takeFirst(), QStringLiteral("tembra")) << qPrintable(action);
        const auto line = CommandLine::parse(words);
        ASSERT_TRUE(line) << qPrintable(action);
        adaptor.ActivateAction(action, {}, {});
        EXPECT_EQ(heard.back(), asSent(*line, words.value(0))) << qPrintable(action);
    }
}

TEST(DesktopEntry, putsDroppedFilesIntoTheTrayAndShowsIt) {
    std::vector<QStringList> heard;
    QObject object;
    ApplicationAdaptor adaptor(&object, [&](const QString &command, const QStringList &arguments) {
        heard.push_back(QStringList{command} + arguments);
        return Result<QString>(QString());
    });
    adaptor.Open({QStringLiteral("file:///a"), QStringLiteral("file:///b")}, {});
    EXPECT_EQ(heard, (std::vector<QStringList>{
                         {QStringLiteral("add"), QStringLiteral("file:///a"), QStringLiteral("file:///b")},
                         {QStringLiteral("open"), QStringLiteral("tray")}}));
    heard.clear();
    adaptor.Activate({});
    EXPECT_EQ(heard, (std::vector<QStringList>{{QStringLiteral("reopen")}}));
}
