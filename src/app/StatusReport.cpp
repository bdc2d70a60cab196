#include "app/StatusReport.h"

#include "app/IsoDate.h"
#include "app/ProgramStatus.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace tembra {

namespace {

QJsonObject shelfObject(const ShelfStatus &status) {
    const ScreenRect &frame = status.frame;
    return {{QStringLiteral("expanded"), status.expanded},
            {QStringLiteral("tab"), commandName(status.tab)},
            {QStringLiteral("display"), status.display},
            {QStringLiteral("frame"), QJsonArray{frame.x, frame.y, frame.width, frame.height}}};
}

QJsonObject screenshotsObject(const ShelfStatus &status) {
    QJsonArray sections;
    for (const ShelfStatus::Section &section : status.sections)
        sections.append(
            QJsonObject{{QStringLiteral("title"), section.title}, {QStringLiteral("count"), section.count}});
    return {{QStringLiteral("count"), status.screenshotCount},
            {QStringLiteral("pinned"), status.pinnedCount},
            {QStringLiteral("paths"), QJsonArray::fromStringList(status.screenshots)},
            {QStringLiteral("selected"), QJsonArray::fromStringList(status.selected)},
            {QStringLiteral("sections"), sections}};
}

QJsonObject trayObject(const ShelfStatus &status) {
    QJsonArray entries;
    for (const ShelfStatus::TrayEntry &entry : status.tray)
        entries.append(
            QJsonObject{{QStringLiteral("path"), entry.path},
                        {QStringLiteral("state"),
                         entry.isAvailable ? QStringLiteral("available") : QStringLiteral("unavailable")}});
    return {{QStringLiteral("count"), entries.size()},
            {QStringLiteral("status"), status.trayStatus},
            {QStringLiteral("entries"), entries}};
}

QJsonValue lastCaptureValue(const ShelfStatus &status) {
    if (!status.lastCapture)
        return QJsonValue::Null;
    return QJsonObject{{QStringLiteral("path"), status.lastCapture->path},
                       {QStringLiteral("at"), isoDate(status.lastCapture->at)}};
}

QJsonObject recognitionObject(const ShelfStatus &status) {
    return {{QStringLiteral("phase"), status.recognitionPhase},
            {QStringLiteral("text"), status.recognitionText},
            {QStringLiteral("expanded"), status.isRecognitionExpanded}};
}

QJsonObject textObject(const ShelfStatus &status) {
    const bool isResult = status.recognitionPhase == u"result";
    return {{QStringLiteral("phase"), status.recognitionPhase},
            {QStringLiteral("characters"), isResult ? status.recognitionText.size() : 0}};
}

QJsonObject shortcutObject(const ShelfStatus &status) {
    return {{QStringLiteral("enabled"), status.isShortcutEnabled},
            {QStringLiteral("title"), status.shortcutTitle},
            {QStringLiteral("error"),
             status.shortcutError ? QJsonValue(*status.shortcutError) : QJsonValue(QJsonValue::Null)}};
}

QJsonObject autoCleanObject(const ShelfStatus &status) {
    QJsonValue next = QJsonValue::Null;
    if (status.nextAutoCleanCheck)
        next =
            static_cast<qint64>(std::chrono::ceil<std::chrono::seconds>(*status.nextAutoCleanCheck).count());
    return {{QStringLiteral("days"), status.autoCleanDays},
            {QStringLiteral("review"), status.autoCleanReview},
            {QStringLiteral("nextCheckSeconds"), next}};
}

QJsonObject editorObject(const EditorStatus &editor) {
    const QRect &frame = editor.frame;
    return {{QStringLiteral("open"), editor.isOpen},
            {QStringLiteral("path"), editor.path.isEmpty() ? QJsonValue() : QJsonValue(editor.path)},
            {QStringLiteral("dirty"), editor.isDirty},
            {QStringLiteral("unsaved"), QJsonArray::fromStringList(editor.unsaved)},
            {QStringLiteral("undo"), editor.undoName},
            {QStringLiteral("redo"), editor.redoName},
            {QStringLiteral("annotations"), editor.annotationCount},
            {QStringLiteral("selected"), editor.selectedCount},
            {QStringLiteral("tool"), editor.tool},
            {QStringLiteral("zoom"), editor.zoom},
            {QStringLiteral("frame"), QJsonArray{frame.x(), frame.y(), frame.width(), frame.height()}},
            {QStringLiteral("typing"), editor.isTyping},
            {QStringLiteral("image"), QJsonArray{editor.imageX, editor.imageY}},
            {QStringLiteral("message"), editor.message},
            {QStringLiteral("words"), editor.words},
            {QStringLiteral("wordCount"), editor.wordCount},
            {QStringLiteral("busy"), editor.isBusy},
            {QStringLiteral("fullImage"), editor.hasFullImage}};
}

QJsonObject onboardingObject(const OnboardingStatus &onboarding) {
    return {{QStringLiteral("step"), commandName(onboarding.step)},
            {QStringLiteral("visible"), onboarding.isVisible},
            {QStringLiteral("heading"), onboarding.heading}};
}

QJsonObject updatesObject(const UpdateStatus &updates) {
    return {
        {QStringLiteral("state"), updates.state},
        {QStringLiteral("version"), updates.version.isEmpty() ? QJsonValue() : QJsonValue(updates.version)},
        {QStringLiteral("automatic"), updates.automatic}};
}

} // namespace

QByteArray statusJson(const ProgramStatus &program) {
    const ShelfStatus &status = program.shelf;
    const QJsonValue page = program.settingsPage ? QJsonValue(name(*program.settingsPage)) : QJsonValue();
    const QJsonObject report{
        {QStringLiteral("version"), program.version},
        {QStringLiteral("shelf"), shelfObject(status)},
        {QStringLiteral("folder"),
         QJsonObject{{QStringLiteral("path"),
                      status.folder ? QJsonValue(*status.folder) : QJsonValue(QJsonValue::Null)},
                     {QStringLiteral("state"), statusName(status.folderState)}}},
        {QStringLiteral("screenshots"), screenshotsObject(status)},
        {QStringLiteral("notification"), QJsonObject{{QStringLiteral("showing"), status.showingNotification},
                                                     {QStringLiteral("text"), status.notificationText},
                                                     {QStringLiteral("detail"), status.notificationDetail},
                                                     {QStringLiteral("count"), status.notificationCount}}},
        {QStringLiteral("tray"), trayObject(status)},
        {QStringLiteral("editor"), editorObject(program.editor)},
        {QStringLiteral("onboarding"), onboardingObject(program.onboarding)},
        {QStringLiteral("recognition"), recognitionObject(status)},
        {QStringLiteral("text"), textObject(status)},
        {QStringLiteral("shortcut"), shortcutObject(status)},
        {QStringLiteral("lastCapture"), lastCaptureValue(status)},
        {QStringLiteral("autoClean"), autoCleanObject(status)},
        {QStringLiteral("updates"), updatesObject(program.updates)},
        {QStringLiteral("settings"), QJsonObject{{QStringLiteral("page"), page}}},
        {QStringLiteral("undo"), QJsonArray::fromStringList(status.undo)},
        {QStringLiteral("redo"), QJsonArray::fromStringList(status.redo)}};
    return QJsonDocument(report).toJson(QJsonDocument::Indented);
}

QString statusText(const ShelfStatus &status) {
    const QString folder =
        status.folder.value_or(QCoreApplication::translate("StatusReport", "No folder selected"));
    return QCoreApplication::translate("StatusReport", "Shelf: %1\nFolder: %2 (%3)\nScreenshots: %4\n")
        .arg(status.expanded ? QCoreApplication::translate("StatusReport", "open")
                             : QCoreApplication::translate("StatusReport", "closed"),
             folder, statusName(status.folderState), QString::number(status.screenshotCount));
}

} // namespace tembra
