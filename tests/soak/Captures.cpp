#include "Captures.h"

#include "e2e/TembraProcess.h"
#include "support/Pixels.h"

#include <QDateTime>
#include <QDir>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cstdio>
#include <sys/stat.h>
#include <unistd.h>

namespace tembra {

namespace {

constexpr int mostCaptures = 120;

bool renamed(const QString &from, const QString &to) {
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

QByteArray contentOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Whether no name leads to an open file any more.
bool isNameless(const QFile &file) {
    struct stat facts {};
    return ::fstat(file.handle(), &facts) == 0 && facts.st_nlink == 0;
}

} // namespace

Captures::Captures(const TembraProcess &tembra, Dice &dice, Tally &tally, Ledger &ledger)
    : m_tembra(tembra),
      m_dice(dice),
      m_tally(tally),
      m_ledger(ledger),
      m_folder(tembra.screenshots()),
      m_elsewhere(QDir::cleanPath(m_folder + QStringLiteral("/../Elsewhere"))) {
    QDir().mkpath(m_elsewhere);
}

void Captures::step() {
    using Step = void (Captures::*)();
    static constexpr std::array<Step, 16> steps{
        &Captures::arrive,          &Captures::arrive,          &Captures::arriveSlowly,
        &Captures::continueArrival, &Captures::continueArrival, &Captures::continueArrival,
        &Captures::continueArrival, &Captures::arriveTorn,      &Captures::rename,
        &Captures::rename,          &Captures::moveOut,         &Captures::moveIn,
        &Captures::remove,          &Captures::overwrite,       &Captures::shootScreen,
        &Captures::remove};
    (this->*m_dice.one(steps))();
    while (names().size() > mostCaptures)
        remove();
}

void Captures::finishArrivals() {
    for (Arrival &arrival : m_arrivals) {
        while (!write(arrival, arrival.bytes.size())) {
        }
    }
    m_arrivals.clear();
}

QString Captures::any() {
    const QStringList all = names();
    return all.isEmpty() ? QString() : m_folder + u'/' + m_dice.one(all);
}

QStringList Captures::names() const {
    QStringList names =
        QDir(m_folder).entryList({QStringLiteral("*.png"), QStringLiteral("*.jpg")}, QDir::Files, QDir::Name);
    names.removeIf([this](const QString &name) {
        const auto isArriving = [&](const Arrival &arrival) {
            return arrival.finalPath.isEmpty() && arrival.file->fileName() == m_folder + u'/' + name;
        };
        return m_torn.contains(name) || std::ranges::any_of(m_arrivals, isArriving);
    });
    return names;
}

// Of the tools that people have, each for another second.
QString Captures::newName(const char *extension) {
    static const QStringList patterns{QStringLiteral("'Screenshot from 'yyyy-MM-dd HH-mm-ss"),
                                      QStringLiteral("'Screenshot_'yyyyMMdd_HHmmss"),
                                      QStringLiteral("'Screenshot 'yyyy-MM-dd' at 'HH.mm.ss"),
                                      QStringLiteral("yyyy-MM-dd-HHmmss'_1280x800_scrot'"),
                                      QStringLiteral("yyyyMMdd_HH'h'mm'm'ss's_grim'"),
                                      QStringLiteral("'ksnip_'yyyyMMdd-HHmmss")};
    const QDateTime first(QDate(2026, 1, 1), QTime(0, 0), Qt::UTC);
    return first.addSecs(++m_number).toString(m_dice.one(patterns)) + u'.' + QString::fromLatin1(extension);
}

QByteArray Captures::picture(const char *format) {
    QImage image(m_dice.between(60, 700), m_dice.between(40, 500), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    for (int i = 0; i < 40; ++i)
        painter.fillRect(m_dice.below(image.width()), m_dice.below(image.height()), m_dice.between(1, 200),
                         m_dice.between(1, 90), QColor::fromHsv(m_dice.below(360), m_dice.below(256), 200));
    painter.end();
    // No two of them are alike.
    image.setPixel(0, 0, static_cast<uint>(++m_number) | 0xff000000U);
    image.setPixel(1, 0, static_cast<uint>(m_dice.below(1 << 24)) | 0xff000000U);
    return encoded(image, format);
}

void Captures::arrive() {
    const bool isPhoto = m_dice.onceIn(6);
    const QString path = m_folder + u'/' + newName(isPhoto ? "jpg" : "png");
    const QByteArray bytes = picture(isPhoto ? "jpg" : "png");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return m_tally.count("captures that could not be written");
    m_ledger.add(bytes, path);
    file.write(bytes);
    m_tally.count("captures written at once");
}

void Captures::arriveSlowly() {
    const QString path = m_folder + u'/' + newName("png");
    const bool isHidden = m_dice.onceIn(2);
    const QString first = isHidden ? m_folder + QStringLiteral("/.part-%1").arg(m_number) : path;
    Arrival arrival{std::make_unique<QFile>(first), picture("png"), 0, isHidden ? path : QString()};
    if (!arrival.file->open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return m_tally.count("captures that could not be written");
    m_arrivals.push_back(std::move(arrival));
}

void Captures::continueArrival() {
    if (m_arrivals.empty())
        return;
    const auto arrival = m_arrivals.begin() + m_dice.below(static_cast<int>(m_arrivals.size()));
    if (write(*arrival, m_dice.between(500, 20'000)))
        m_arrivals.erase(arrival);
}

bool Captures::write(Arrival &arrival, qsizetype most) {
    const qsizetype count = std::min(most, arrival.bytes.size() - arrival.written);
    arrival.file->write(arrival.bytes.constData() + arrival.written, count);
    arrival.file->flush();
    arrival.written += count;
    if (arrival.written < arrival.bytes.size())
        return false;
    m_ledger.add(arrival.bytes, arrival.file->fileName());
    const bool isHidden = !arrival.finalPath.isEmpty();
    arrival.file->close();
    if (isHidden && !renamed(arrival.file->fileName(), arrival.finalPath))
        m_tally.fault(QStringLiteral("a hidden file is gone: ") + arrival.file->fileName());
    m_tally.count(isHidden ? "captures written under a hidden name" : "captures written slowly");
    return true;
}

void Captures::arriveTorn() {
    if (m_torn.size() > 5)
        return;
    const QString name = newName("png");
    const QByteArray bytes = picture("png");
    QFile file(m_folder + u'/' + name);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return;
    m_torn.insert(name);
    const QByteArray part = bytes.left(bytes.size() * 2 / 3);
    m_ledger.add(part, file.fileName());
    file.write(part);
    m_tally.count("captures that were never finished");
}

void Captures::shootScreen() {
    // Taking one takes a while.
    if (!m_dice.onceIn(3))
        return;
    const QString path = m_folder + u'/' + newName("png");
    if (m_tembra.tool(QStringLiteral("scrot"), {path}).exitStatus != 0)
        return m_tally.count("captures that could not be written");
    if (const QByteArray bytes = contentOf(path); !bytes.isEmpty())
        m_ledger.add(bytes, path);
    m_tally.count("captures of the screen");
}

void Captures::move(const QString &from, const QString &to, const char *event) {
    if (!QFile::exists(to) && renamed(from, to))
        m_tally.count(event);
}

void Captures::rename() {
    const QString path = any();
    if (!path.isEmpty())
        move(path, m_folder + u'/' + newName(path.endsWith(u"jpg") ? "jpg" : "png"), "captures renamed");
}

void Captures::moveOut() {
    const QString path = any();
    if (!path.isEmpty())
        move(path, m_elsewhere + u'/' + QFileInfo(path).fileName(), "captures moved out");
}

void Captures::moveIn() {
    const QStringList names = QDir(m_elsewhere).entryList(QDir::Files);
    if (names.isEmpty())
        return;
    const QString &name = m_dice.one(names);
    move(m_elsewhere + u'/' + name, m_folder + u'/' + name, "captures moved in again");
}

void Captures::remove() {
    QFile file(any());
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QByteArray bytes = file.readAll();
    if (::unlink(QFile::encodeName(file.fileName()).constData()) != 0)
        return;
    // Else another file had taken the name meanwhile, and is what was deleted.
    if (!isNameless(file))
        return m_tally.count("deletions that met another file");
    m_ledger.forget(bytes);
    m_tally.count("captures deleted");
}

void Captures::replace(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QByteArray old = file.readAll();
    const QByteArray bytes = picture(path.endsWith(u"jpg") ? "jpg" : "png");
    QFile next(m_folder + QStringLiteral("/.next-%1").arg(m_number));
    if (!next.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return;
    next.write(bytes);
    next.close();
    m_ledger.add(bytes, path);
    if (!renamed(next.fileName(), path))
        return m_tally.fault(QStringLiteral("a hidden file is gone: ") + next.fileName());
    if (!isNameless(file))
        return m_tally.count("replacements that met another file");
    m_ledger.forget(old);
    m_tally.count("captures replaced by another file");
}

void Captures::overwrite() {
    const QString path = any();
    if (path.isEmpty() || m_dice.onceIn(2))
        return replace(path);
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        return;
    const QByteArray bytes = picture(path.endsWith(u"jpg") ? "jpg" : "png");
    m_ledger.forget(file.readAll());
    m_ledger.add(bytes, path);
    file.resize(0);
    file.seek(0);
    file.write(bytes);
    m_tally.count("captures written over in place");
}

} // namespace tembra
