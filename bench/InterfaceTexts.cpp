#include "InterfaceTexts.h"

#include "InterfaceScenes.h"
#include "PhotoPictures.h"
#include "WordPictures.h"

#include <QtWidgets>

#include <cstdlib>

namespace tembra::bench {

namespace {

using Languages = QStringList;

struct Look {
    const char *font = "DejaVu Sans";
    int pixelSize = 13;
    bool isDark = false;
    double scale = 1;
};

QPalette paletteOf(bool isDark) {
    QPalette palette = QApplication::style()->standardPalette();
    if (!isDark)
        return palette;
    const QColor ink(224, 224, 228);
    palette.setColor(QPalette::Window, QColor(45, 46, 50));
    palette.setColor(QPalette::Base, QColor(32, 33, 36));
    palette.setColor(QPalette::AlternateBase, QColor(39, 40, 44));
    palette.setColor(QPalette::Button, QColor(58, 59, 64));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, ink);
    palette.setColor(QPalette::PlaceholderText, QColor(140, 140, 146));
    palette.setColor(QPalette::Highlight, QColor(42, 90, 160));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

void apply(const Look &look) {
    QApplication::setPalette(paletteOf(look.isDark));
    QFont font(QString::fromLatin1(look.font));
    font.setPixelSize(look.pixelSize);
    font.setHintingPreference(QFont::PreferFullHinting);
    QApplication::setFont(font);
}

QImage rendered(QWidget &window, double scale) {
    window.ensurePolished();
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();
    QCoreApplication::processEvents();
    QImage image((QSizeF(window.size()) * scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(window.palette().color(QPalette::Window));
    window.render(&image);
    image.setDevicePixelRatio(1);
    return image;
}

// The pictures of one folder, as they come.
class Collection {
public:
    explicit Collection(const QString &folder) : m_folder(folder) {}

    template <class Scene>
    void add(const char *name, const Look &look, Scene scene, bool hasColumns = false,
             const Languages &languages = {QStringLiteral("eng")}) {
        apply(look);
        const InterfaceScene made = scene();
        write({QString::fromLatin1(name), {}, made.texts.join(u'\n'), languages, hasColumns},
              rendered(*made.window, look.scale));
    }
    void write(InterfaceText text, const QImage &image,
               QImageIOHandler::Transformations turn = QImageIOHandler::TransformationNone) {
        const bool isTurned = turn != QImageIOHandler::TransformationNone;
        text.file = m_folder + u'/' + QString::number(m_texts.size()) + (isTurned ? u".jpg"_qs : u".png"_qs);
        QImageWriter writer(text.file);
        writer.setTransformation(turn);
        writer.setQuality(isTurned ? 95 : 80);
        if (!writer.write(image)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(text.file));
            std::exit(1);
        }
        m_texts.push_back(std::move(text));
    }
    // Several windows on one screen.
    void addScreen(const char *name, QSize size, const QColor &colour,
                   const std::vector<std::pair<QPoint, InterfaceScene>> &windows) {
        QImage screen(size, QImage::Format_RGB32);
        screen.fill(colour);
        QPainter painter(&screen);
        QStringList texts;
        for (const auto &[place, scene] : windows) {
            painter.drawImage(place, rendered(*scene.window, 1));
            texts += scene.texts;
        }
        painter.end();
        write({QString::fromLatin1(name), {}, texts.join(u'\n'), {QStringLiteral("eng")}, true}, screen);
    }

    std::vector<InterfaceText> take() { return std::move(m_texts); }

private:
    QString m_folder;
    std::vector<InterfaceText> m_texts;
};

void addWindows(Collection &texts) {
    constexpr auto english = SceneLanguage::english;
    texts.add("message box", {}, [] { return messageBox(english); });
    texts.add("message box, dark, 2x", {"Inter", 13, true, 2}, [] { return messageBox(english); });
    texts.add("settings", {"Cantarell", 14}, [] { return settingsDialog(english); });
    texts.add("settings, dark", {"DejaVu Sans", 12, true}, [] { return settingsDialog(english); });
    texts.add("settings, 2x", {"Inter", 13, false, 2}, [] { return settingsDialog(english); });
    texts.add("menus", {"Inter", 13}, menus);
    texts.add("menus, dark", {"Cantarell", 14, true}, menus);
    texts.add("code", {}, [] { return sourceCode(false); });
    texts.add("code, dark", {}, [] { return sourceCode(true); });
    texts.add("code, dark, 2x", {"DejaVu Sans", 13, true, 2}, [] { return sourceCode(true); });
    texts.add("table", {"Liberation Sans", 13}, invoiceTable, true);
    texts.add("table, dark, 1.5x", {"DejaVu Sans", 13, true, 1.5}, invoiceTable, true);
    texts.add("file list", {"Inter", 13}, fileTree, true);
    texts.add("file list, dark", {"Cantarell", 14, true}, fileTree, true);
    texts.add("terminal", {}, terminal);
    texts.add("terminal, 2x", {"DejaVu Sans", 13, false, 2}, terminal);
    texts.add("article", {"Liberation Serif", 16}, [] { return article(english); });
    texts.add("article, dark", {"Liberation Sans", 15, true}, [] { return article(english); });
    texts.add("badges and hints", {"Liberation Sans", 13}, issueList);
    texts.add("low contrast", {"Inter", 13}, paleForm);
    texts.add("chat", {"Cantarell", 14}, chat);
    texts.add("tiny", {"DejaVu Sans", 12}, label);
    texts.add("tiny, dark", {"Inter", 13, true}, label);
}

void addLanguages(Collection &texts) {
    const Languages german{QStringLiteral("deu"), QStringLiteral("eng")};
    const Languages russian{QStringLiteral("eng"), QStringLiteral("rus")};
    const auto in = [](SceneLanguage language, auto scene) { return [=] { return scene(language); }; };
    texts.add("German message box, dark", {"Inter", 13, true}, in(SceneLanguage::german, messageBox), false,
              german);
    texts.add("German settings", {}, in(SceneLanguage::german, settingsDialog), false, german);
    texts.add("Russian message box", {}, in(SceneLanguage::russian, messageBox), false, russian);
    texts.add("Russian settings, dark", {"Liberation Sans", 14, true},
              in(SceneLanguage::russian, settingsDialog), false, russian);
    texts.add("Russian article, 2x", {"DejaVu Sans", 15, false, 2}, in(SceneLanguage::russian, article),
              false, russian);
    texts.add("English settings, with Russian", {}, in(SceneLanguage::english, settingsDialog), false,
              russian);
}

void addWholeScreens(Collection &texts) {
    for (int number = 0; number < 2; ++number) {
        const WordPicture picture = wordPicture(QSize(1600, 900), number);
        QStringList words;
        for (const WordPicture::Word &word : picture.words)
            words += word.text;
        texts.write(
            {u"random words %1"_qs.arg(number + 1), {}, words.join(u' '), {QStringLiteral("eng")}, true},
            picture.image);
    }
    constexpr auto english = SceneLanguage::english;
    const auto screen = [&](const char *name, QSize size, const Look &look, const QColor &colour) {
        apply(look);
        std::vector<std::pair<QPoint, InterfaceScene>> windows;
        windows.emplace_back(QPoint(40, 60), sourceCode(look.isDark));
        windows.emplace_back(QPoint(740, 50), invoiceTable());
        windows.emplace_back(QPoint(60, 540), messageBox(english));
        windows.emplace_back(QPoint(760, 420), settingsDialog(english));
        windows.emplace_back(QPoint(1320, 480), terminal());
        texts.addScreen(name, size, colour, windows);
    };
    screen("screen", {1920, 1080}, {}, QColor(60, 110, 140));
    screen("screen, dark, 4K", {3840, 2160}, {"Inter", 13, true}, QColor(24, 26, 32));
    apply({});
    std::vector<std::pair<QPoint, InterfaceScene>> one;
    one.emplace_back(QPoint(3400, 1900), article(english));
    texts.addScreen("one window on 8K", {7680, 4320}, QColor(40, 70, 110), one);
}

void addPictures(Collection &texts) {
    apply({"Liberation Serif", 18});
    const InterfaceScene scene = article(SceneLanguage::english);
    texts.write({u"article, turned by EXIF"_qs, {}, scene.texts.join(u'\n')}, rendered(*scene.window, 1).transformed(QTransform().rotate(-90)),
                QImageIOHandler::TransformationRotate90);
    texts.write({u"photograph"_qs, {}, {}}, photoPicture(QSize(1600, 1000), 1));
    QImage gradient(1280, 800, QImage::Format_RGB32);
    QPainter painter(&gradient);
    QLinearGradient colours(0, 0, 1280, 800);
    colours.setColorAt(0, QColor(20, 40, 90));
    colours.setColorAt(1, QColor(240, 190, 150));
    painter.fillRect(gradient.rect(), colours);
    painter.end();
    texts.write({u"empty desktop"_qs, {}, {}}, gradient);
}

} // namespace

std::vector<InterfaceText> interfaceTexts(const QString &folder) {
    QApplication::setStyle(QStringLiteral("Fusion"));
    Collection texts(folder);
    addWindows(texts);
    addLanguages(texts);
    addWholeScreens(texts);
    addPictures(texts);
    return texts.take();
}

} // namespace tembra::bench
