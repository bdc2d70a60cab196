#pragma once

#include "platform/Displays.h"
#include "platform/HotZones.h"
#include "platform/PanelWindows.h"
#include "platform/PictureDecoder.h"
#include "platform/Thumbnails.h"

#include <QWidget>

#include <utility>

namespace tembra {

// Screens that the test connects.
class FakeDisplays final : public Displays {
public:
    std::vector<DisplayFacts> screens{
        {.identifier = 1, .name = QStringLiteral("first"), .frame = {0, 0, 1280, 800}}};

    [[nodiscard]] std::vector<DisplayFacts> connected() const override { return screens; }
    [[nodiscard]] std::unique_ptr<Observation> observe(std::function<void()> onChange) override {
        m_onChange = std::move(onChange);
        return std::make_unique<Observation>();
    }
    void set(std::vector<DisplayFacts> connectedScreens) {
        screens = std::move(connectedScreens);
        m_onChange();
    }

private:
    std::function<void()> m_onChange;
};

class FakePanelWindows final : public PanelWindows {
public:
    void prepare(QWidget &panel) override { panel.winId(); }
    [[nodiscard]] bool isShown(const QWidget &panel) const override { return panel.isVisible(); }
    void setInputRegion(QWidget &, const QRegion &) override {}
    void takeKeyboardFocus(QWidget &) override {}
    void returnKeyboardFocus(QWidget &) override {}
};

// Zones that count themselves.
class FakeHotZones final : public HotZones {
public:
    int count = 0;

    [[nodiscard]] std::unique_ptr<Zone> add(const ScreenRect &, Callbacks callbacks) override {
        m_lastCallbacks = std::move(callbacks);
        return std::make_unique<CountedZone>(count);
    }
    // On the zone added last.
    void press() const { m_lastCallbacks.onPress(); }

private:
    class CountedZone final : public Zone {
    public:
        explicit CountedZone(int &count) : m_count(count) { ++m_count; }
        ~CountedZone() override { --m_count; }
        void setRect(const ScreenRect &) override {}

    private:
        int &m_count;
    };

    Callbacks m_lastCallbacks;
};

// Never has a picture.
class NoThumbnails final : public Thumbnails {
public:
    [[nodiscard]] std::unique_ptr<Request> request(const QString &, double, double,
                                                   std::function<void(Result<Thumbnail>)>) override {
        return std::make_unique<Request>();
    }
};

// Can read none.
class NoPictures final : public PictureDecoder {
public:
    [[nodiscard]] Result<QImage> decode(const QString &) const override {
        return failure({.domain = QStringLiteral("Test"), .code = 1});
    }
};

} // namespace tembra
