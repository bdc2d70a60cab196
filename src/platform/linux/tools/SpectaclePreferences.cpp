#include "platform/linux/tools/SpectaclePreferences.h"

#include "platform/linux/tools/SettingsText.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

namespace tembra {

struct SpectaclePreferences::Form {
    QByteArray group;
    QByteArray location;
    QByteArray nameTemplate;
    QString defaultTemplate;
    QChar placeholder;
};

namespace {

constexpr int firstVersionOfNewForm = 24;
const QByteArray general = QByteArrayLiteral("General");
const QByteArray saveAtOnce = QByteArrayLiteral("autoSaveImage");
const QByteArray clipboardAction = QByteArrayLiteral("clipboardGroup");
const QByteArray copyPicture = QByteArrayLiteral("PostScreenshotCopyImage");

} // namespace

SpectaclePreferences::SpectaclePreferences(QString path, StandardFolders folders,
                                           const QProcessEnvironment &environment, int installedVersion)
    : RcFilePreferences(std::move(path), std::move(folders)),
      m_environment(environment),
      m_installedVersion(installedVersion) {}

const SpectaclePreferences::Form &SpectaclePreferences::form(const RcFile &file) const {
    static const Form oldForm{"Save", "defaultSaveLocation", "saveFilenameFormat",
                              QStringLiteral("Screenshot_%Y%M%D_%H%m%S"), u'%'};
    static const Form newForm{"ImageSave", "imageSaveLocation", "imageFilenameTemplate",
                              QStringLiteral("Screenshot_<yyyy><MM><dd>_<HH><mm><ss>"), u'<'};
    const bool isOld = file.hasGroup(oldForm.group);
    const bool isNew = file.hasGroup(newForm.group);
    if (isOld != isNew)
        return isNew ? newForm : oldForm;
    return m_installedVersion > 0 && m_installedVersion < firstVersionOfNewForm ? oldForm : newForm;
}

std::optional<QString> SpectaclePreferences::text(const RcFile &file, const QByteArray &group,
                                                  const QByteArray &key) const {
    const auto entry = file.entry(group, key);
    if (!entry || entry->flags.contains('d'))
        return std::nullopt;
    const QString text = fromKConfig(entry->value);
    return entry->flags.contains('e') ? expandedKConfig(text, m_environment) : text;
}

QString SpectaclePreferences::defaultLocation(const RcFile &file) const {
    const Form &current = form(file);
    if (current.group != "ImageSave")
        return folders().pictures;
    const QString folder = text(file, current.group, "translatedScreenshotsFolder").value_or(QString());
    return folders().pictures + u'/' + (folder.isEmpty() ? QStringLiteral("Screenshots") : folder);
}

std::optional<QString> SpectaclePreferences::location() const {
    const RcFile file = settings();
    const auto stored = text(file, form(file).group, form(file).location);
    const auto path = stored ? folderPath(*stored) : std::nullopt;
    return path.value_or(defaultLocation(file));
}

std::optional<QString> SpectaclePreferences::target() const {
    const RcFile file = settings();
    if (text(file, general, saveAtOnce) == u"true")
        return QStringLiteral("file");
    if (text(file, general, clipboardAction) == QLatin1StringView(copyPicture))
        return QStringLiteral("clipboard");
    return std::nullopt;
}

std::optional<QString> SpectaclePreferences::name() const {
    const RcFile file = settings();
    const Form &current = form(file);
    const auto nameTemplate = text(file, current.group, current.nameTemplate);
    if (!nameTemplate || *nameTemplate == current.defaultTemplate)
        return std::nullopt;
    return fixedBeginning(*nameTemplate, current.placeholder);
}

void SpectaclePreferences::setLocation(const std::optional<QString> &path) {
    const Form &current = form(settings());
    if (!path) {
        changeUnlocked(current.group, current.location, std::nullopt);
    } else if (const auto folder = absolute(*path)) {
        // With the final slash that the tool itself writes.
        changeUnlocked(current.group, current.location,
                       folderUri(folder->endsWith(u'/') ? *folder : *folder + u'/'));
    }
}

void SpectaclePreferences::setTarget(const std::optional<QString> &target) {
    const bool isFile = target.value_or(QStringLiteral("file")) == u"file";
    if (!isFile && target != u"clipboard")
        return;
    if (!target)
        changeUnlocked(general, saveAtOnce, std::nullopt);
    else
        changeUnlocked(general, saveAtOnce, isFile ? "true" : "false");
    if (!isFile)
        changeUnlocked(general, clipboardAction, copyPicture);
    else if (this->target() == u"clipboard")
        changeUnlocked(general, clipboardAction, std::nullopt);
}

void SpectaclePreferences::changeUnlocked(const QByteArray &group, const QByteArray &key,
                                          const std::optional<QByteArray> &value) {
    const auto entry = settings().entry(group, key);
    if (!entry || !entry->flags.contains('i'))
        change(group, key, value);
}

int SpectaclePreferences::installedVersion(const QStringList &dataFolders) {
    static const QRegularExpression release(QStringLiteral("<release\\s[^>]*version=\"(\\d+)"));
    for (const QString &folder : dataFolders) {
        for (const QString &kind : {QStringLiteral("appdata"), QStringLiteral("metainfo")}) {
            QFile file(folder + QStringLiteral("/metainfo/org.kde.spectacle.%1.xml").arg(kind));
            if (!file.open(QIODevice::ReadOnly))
                continue;
            const auto match = release.match(QString::fromUtf8(file.readAll()));
            if (match.hasMatch())
                return match.captured(1).toInt();
        }
    }
    return 0;
}

} // namespace tembra
