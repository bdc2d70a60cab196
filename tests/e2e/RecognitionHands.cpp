#include "RecognitionHands.h"

#include "support/Files.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QUrl>

#include <csignal>

namespace tembra {

namespace {

QString text(const char *utf8) {
    return QString::fromUtf8(utf8);
}

QJsonObject recognition(const QJsonObject &status) {
    return status[u"recognition"].toObject();
}

} // namespace

bool RecognitionHands::open(const char *tab) const {
    return tembra().command({text("open"), text("--tab"), text(tab)}).exitStatus == 0 &&
           tembra().waitFor([tab](const QJsonObject &status) {
               const QJsonObject shelf = status[u"shelf"].toObject();
               return shelf[u"expanded"].toBool() && shelf[u"tab"].toString() == text(tab) &&
                      shelf[u"frame"][2].toInt() == 744;
           });
}

bool RecognitionHands::isIn(const char *phase) const {
    return tembra().waitFor([phase](const QJsonObject &status) {
        return recognition(status)[u"phase"].toString() == text(phase);
    });
}

bool RecognitionHands::shows(const QString &lines) const {
    return tembra().waitFor([&lines](const QJsonObject &status) {
        return recognition(status)[u"phase"].toString() == u"result" &&
               recognition(status)[u"text"].toString() == lines;
    });
}

bool RecognitionHands::says(const char *sentence) const {
    return tembra().waitFor([sentence](const QJsonObject &status) {
        return recognition(status)[u"phase"].toString() == u"error" &&
               recognition(status)[u"text"].toString() == text(sentence);
    });
}

bool RecognitionHands::isHigh(int height) const {
    return tembra().waitFor(
        [height](const QJsonObject &status) { return status[u"shelf"][u"frame"][3].toInt() == height; });
}

QString RecognitionHands::draw(const QString &path, const QString &lines) const {
    tembra().tool(text("convert"),
                  {text("-background"), text("white"), text("-pointsize"), text("32"), text("label:") + lines,
                   text("-bordercolor"), text("white"), text("-border"), text("40"), path});
    return path;
}

QString RecognitionHands::drawPage(const QString &path) const {
    tembra().tool(text("convert"), {text("-background"), text("white"), text("-pointsize"), text("32"),
                                    text("label:") + text("A long line of words for a page ").repeated(2),
                                    text("-duplicate"), text("79"), text("-append"), path});
    return path;
}

void RecognitionHands::paste(const QString &path, const char *type) const {
    tembra().tool(text("xclip"), {text("-selection"), text("clipboard"), text("-t"), text(type), path});
    press({text("ctrl+v")});
}

void RecognitionHands::pasteFile(const QString &path) const {
    paste(writeFile(tembra().home() + text("/list"), QUrl::fromLocalFile(path).toEncoded() + "\r\n"),
          "text/uri-list");
}

QByteArray RecognitionHands::copied(const char *type) const {
    return tembra()
        .tool(text("xclip"), {text("-o"), text("-selection"), text("clipboard"), text("-t"), text(type)})
        .output.toUtf8();
}

bool RecognitionHands::hasCopied(const QString &lines) const {
    return tembra().waitFor([&](const QJsonObject &) { return copied() == lines.toUtf8(); });
}

std::optional<int> RecognitionHands::holdWorker() const {
    // As much of its name as the system keeps.
    const QStringList ours{text("-P"), QString::number(tembra().processId()), text("-x"),
                           text("tembra-recognit")};
    const bool isHeld = tembra().waitFor([&](const QJsonObject &) {
        return tembra().tool(text("pkill"), QStringList{text("-STOP")} + ours).exitStatus == 0;
    });
    if (!isHeld)
        return std::nullopt;
    return tembra().tool(text("pgrep"), ours).output.trimmed().toInt();
}

void RecognitionHands::killWorker(int worker) const {
    ::kill(worker, SIGKILL);
}

bool RecognitionHands::isGone(int worker) const {
    return tembra().waitFor([worker](const QJsonObject &) {
        // Nothing for one that has ended and nobody has asked about.
        return QFileInfo(QStringLiteral("/proc/%1/exe").arg(worker)).symLinkTarget().isEmpty();
    });
}

} // namespace tembra
