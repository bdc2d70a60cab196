#include "windows/settings/AutoCleanChange.h"

#include "settings/AppSettings.h"

#include <QCoreApplication>

namespace tembra {

namespace {

QString translated(const char *text, int count = -1) {
    return QCoreApplication::translate("AutoCleanChange", text, nullptr, count);
}

} // namespace

AutoCleanChange::AutoCleanChange(AppSettings &settings, Actions actions)
    : m_settings(settings), m_actions(std::move(actions)) {}

void AutoCleanChange::request(ScreenshotAutoCleanPeriod period) {
    m_requests.advance();
    if (period == m_settings.state().screenshotAutoClean)
        return onSettled();
    if (period == ScreenshotAutoCleanPeriod::never) {
        m_settings.setScreenshotAutoClean(period);
        return onSettled();
    }
    const AppSettingsState &state = m_settings.state();
    m_actions.preview(period,
                      [this, request = Request{period, state.screenshotAutoClean, state.screenshotsFolder,
                                               m_requests.ticket()}](const Result<int> &count) {
                          if (request.ticket.isCurrent())
                              counted(count, request);
                      });
}

bool AutoCleanChange::isUpToDate(const Request &request) const {
    const AppSettingsState &state = m_settings.state();
    return state.screenshotsFolder == request.folder && state.screenshotAutoClean == request.current;
}

void AutoCleanChange::counted(const Result<int> &count, const Request &request) {
    if (!isUpToDate(request))
        return onSettled();
    if (!count) {
        onSettled();
        return onFailed(translated(QT_TRANSLATE_NOOP("AutoCleanChange", "Couldn’t check screenshots")),
                        count.error().message);
    }
    // Nothing moves that would not have moved anyway.
    if (request.current != ScreenshotAutoCleanPeriod::never && *count == 0)
        return decide(request, true);
    m_actions.ask(question(*count), [this, request](bool agrees) {
        if (request.ticket.isCurrent())
            decide(request, agrees);
    });
}

void AutoCleanChange::decide(const Request &request, bool agrees) {
    // Asked about another folder, it says nothing of this one.
    if (agrees && isUpToDate(request))
        m_actions.enable(request.period);
    onSettled();
}

AutoCleanChange::Question AutoCleanChange::question(int count) const {
    const bool isOn = m_settings.state().screenshotAutoClean != ScreenshotAutoCleanPeriod::never;
    const QString action = isOn ? translated(QT_TRANSLATE_NOOP("AutoCleanChange", "Change"))
                                : translated(QT_TRANSLATE_NOOP("AutoCleanChange", "Enable"));
    const QString counted =
        translated(QT_TRANSLATE_N_NOOP("AutoCleanChange",
                                       "%n files will move to Trash when you click %1. Pinned files stay."),
                   count)
            .arg(action);
    if (isOn)
        return {translated(QT_TRANSLATE_NOOP("AutoCleanChange", "Change auto-clean?")), counted, action};
    const QString moves = translated(
        QT_TRANSLATE_NOOP("AutoCleanChange", "Moves old screenshots and recordings to Trash, including "
                                             "existing ones. Pinned items stay."));
    return {translated(QT_TRANSLATE_NOOP("AutoCleanChange", "Enable auto-clean?")),
            count == 0 ? moves : moves + QStringLiteral("\n\n") + counted, action};
}

} // namespace tembra
