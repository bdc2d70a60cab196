#pragma once

#include <QString>

namespace tembra::settingsKey {

// The persisted keys. AppSettings is their only writer, but for the review of auto-clean, whose state the
// session keeps.
inline const QString hasCompletedOnboarding = QStringLiteral("hasCompletedOnboarding");
inline const QString hasCaughtFirstScreenshot = QStringLiteral("hasCaughtFirstScreenshot");
inline const QString activationMode = QStringLiteral("activationMode");
inline const QString shortcutEnabled = QStringLiteral("shortcutEnabled");
inline const QString activationShortcut = QStringLiteral("activationShortcut");
inline const QString hoverOnTabToOpen = QStringLiteral("hoverOnTabToOpen");
inline const QString fileTrayEnabled = QStringLiteral("fileTrayEnabled");
inline const QString imageToTextEnabled = QStringLiteral("imageToTextEnabled");
inline const QString displayPreference = QStringLiteral("displayPreference");
inline const QString screenshotNotifications = QStringLiteral("screenshotNotifications");
inline const QString automaticallyCopyScreenshots = QStringLiteral("automaticallyCopyScreenshots");
inline const QString automaticallyOpenEditor = QStringLiteral("automaticallyOpenEditor");
inline const QString showFileNames = QStringLiteral("showFileNames");
inline const QString groupScreenshotsByDate = QStringLiteral("groupScreenshotsByDate");
inline const QString screenshotAutoCleanDays = QStringLiteral("screenshotAutoCleanDays");
inline const QString textRecognitionLanguages = QStringLiteral("textRecognitionLanguages");
// A program and its arguments.
inline const QString newCaptureCommand = QStringLiteral("newCaptureCommand");
inline const QString pinnedScreenshotBookmarks = QStringLiteral("pinnedScreenshotBookmarks");
inline const QString autoCleanRestoredFiles = QStringLiteral("autoCleanRestoredFiles");
// The review of an auto-clean that was on before the review existed: 0 still owed to the user, 1 shown but
// not answered, 2 not needed.
inline const QString autoCleanSafetyReview = QStringLiteral("autoCleanSafetyReviewV1");
inline const QString previousScreenshotThumbnailPreference =
    QStringLiteral("previousScreenshotThumbnailPreference");

} // namespace tembra::settingsKey
