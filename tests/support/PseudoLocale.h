#pragma once

#include <QCoreApplication>
#include <QGuiApplication>
#include <QTranslator>
#include <QWidget>

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <memory>

namespace tembra {

// A language that nobody speaks, for as long as it lives: a third longer than English and, when wished, from
// right to left.
class PseudoLocale final : public QTranslator {
public:
    explicit PseudoLocale(Qt::LayoutDirection direction) {
        QCoreApplication::installTranslator(this);
        QGuiApplication::setLayoutDirection(direction);
    }
    ~PseudoLocale() override {
        QCoreApplication::removeTranslator(this);
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }

    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char *, const char *source, const char *, int) const override {
        const QString text = QString::fromUtf8(source);
        return text + QString(text.size() / 3, u'e');
    }
};

// Whether it, or what it stands in, runs one way in every language.
inline bool hasFixedDirection(const QWidget *widget) {
    for (; widget && !widget->isWindow(); widget = widget->parentWidget()) {
        if (widget->testAttribute(Qt::WA_SetLayoutDirection))
            return true;
    }
    return false;
}

// The shown widgets in it that run as the language does, in the order of their making, at their places in it.
inline QList<std::pair<const QWidget *, QRect>> placesIn(const QWidget &window) {
    QList<std::pair<const QWidget *, QRect>> places;
    for (const QWidget *child : window.findChildren<QWidget *>()) {
        if (child->isVisible() && !hasFixedDirection(child))
            places.append({child, {child->mapTo(&window, QPoint()), child->size()}});
    }
    return places;
}

// Of the longer texts none is cut, and from right to left everything stands where a mirror shows it.
inline void expectMirrorImage(const std::function<std::unique_ptr<QWidget>()> &make) {
    const auto placesIn = [&make](Qt::LayoutDirection direction, int &width) {
        const PseudoLocale locale(direction);
        const auto window = make();
        window->show();
        QCoreApplication::processEvents();
        width = window->width();
        QList<std::pair<QString, QRect>> found;
        for (const auto &[widget, place] : tembra::placesIn(*window)) {
            const QString name =
                QString::fromLatin1(widget->metaObject()->className()) + u' ' + widget->accessibleName();
            EXPECT_GE(place.width(), widget->minimumSizeHint().width()) << name.toStdString();
            found.append({name, place});
        }
        return found;
    };
    int width = 0;
    const auto plain = placesIn(Qt::LeftToRight, width);
    const auto mirrored = placesIn(Qt::RightToLeft, width);
    ASSERT_EQ(mirrored.size(), plain.size());
    for (qsizetype at = 0; at < plain.size(); ++at) {
        const QRect &place = plain[at].second;
        EXPECT_NEAR(mirrored[at].second.x(), width - place.x() - place.width(), 1)
            << plain[at].first.toStdString();
        EXPECT_EQ(mirrored[at].second.size(), place.size()) << plain[at].first.toStdString();
    }
}

} // namespace tembra
