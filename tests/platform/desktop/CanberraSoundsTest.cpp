#include "platform/linux/desktop/CanberraSounds.h"

#include "support/EventLoop.h"
#include "support/Files.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>

using namespace tembra;

namespace {

// A tenth of a second of a tone, in the form that files of raw sound have as well.
QByteArray samples(std::int16_t amplitude) {
    QByteArray bytes;
    for (int i = 0; i < 4410; ++i) {
        const std::int16_t sample = i / 50 % 2 == 0 ? amplitude : static_cast<std::int16_t>(-amplitude);
        bytes.append(reinterpret_cast<const char *>(&sample), sizeof sample);
    }
    return bytes;
}

QByteArray wave(const QByteArray &samples) {
    const auto number = [](std::uint32_t value, int size) {
        return QByteArray(reinterpret_cast<const char *>(&value), size);
    };
    const auto size = static_cast<std::uint32_t>(samples.size());
    return "RIFF" + number(size + 36, 4) + "WAVEfmt " + number(16, 4) + number(1, 2) + number(1, 2) +
           number(44100, 4) + number(88200, 4) + number(2, 2) + number(16, 2) + "data" + number(size, 4) +
           samples;
}

// A machine whose sound card is a file, and a sound theme of its own.
class CanberraSoundsTest : public testing::Test {
protected:
    CanberraSoundsTest() {
        const QString sounds = path(QStringLiteral("sounds/%1/stereo").arg(theme));
        QDir().mkpath(sounds);
        writeFile(sounds + QStringLiteral("/../index.theme"),
                  "[Sound Theme]\nName=Test\nDirectories=stereo\n[stereo]\nOutputProfile=stereo\n");
        writeFile(sounds + QStringLiteral("/trash-empty.wav"), wave(trashSamples));
        writeFile(sounds + QStringLiteral("/device-added.wav"), wave(restoreSamples));
        const QByteArray card =
            "pcm.!default { type plug slave.pcm { type file slave.pcm { type null } format raw file \"" +
            QFile::encodeName(output) + "\" } }\n";
        const QString configuration = writeFile(path(QStringLiteral("asound.conf")), card);
        qputenv("ALSA_CONFIG_PATH", QFile::encodeName(configuration));
        qputenv("CANBERRA_DRIVER", "alsa");
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_folder.path()));
        qputenv("XDG_CACHE_HOME", QFile::encodeName(m_folder.path()));
    }

    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }
    [[nodiscard]] EventSoundSetting setting() const {
        return EventSoundSetting({[this] { return EventSoundSetting::Statement{isEnabled, theme}; }});
    }
    [[nodiscard]] QByteArray played() const {
        QFile file(output);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    const QByteArray trashSamples = samples(1000);
    const QByteArray restoreSamples = samples(-2000);
    bool isEnabled = true;

private:
    const QTemporaryDir m_folder;

protected:
    // Of another name each time: what is known of a theme is remembered.
    const QString theme = QFileInfo(m_folder.path()).fileName();
    const QString output = path(QStringLiteral("played.raw"));
};

} // namespace

TEST_F(CanberraSoundsTest, playsTheSoundsOfTheTheme) {
    struct Case {
        Sounds::Event event;
        QByteArray samples;
    };
    for (const Case &c :
         {Case{Sounds::Event::movedToTrash, trashSamples}, Case{Sounds::Event::restored, restoreSamples}}) {
        CanberraSounds sounds(setting());
        sounds.play(c.event);
        EXPECT_TRUE(eventually([this, &c] { return played().contains(c.samples); }));
    }
}

TEST_F(CanberraSoundsTest, isSilentWhileSoundsAreOff) {
    isEnabled = false;
    CanberraSounds sounds(setting());
    sounds.play(Sounds::Event::movedToTrash);
    isEnabled = true;
    sounds.play(Sounds::Event::restored);
    EXPECT_TRUE(eventually([this] { return played().contains(restoreSamples); }));
}

TEST_F(CanberraSoundsTest, isSilentWithoutSound) {
    qputenv("ALSA_CONFIG_PATH", "/nonexistent");
    CanberraSounds sounds(setting());
    sounds.play(Sounds::Event::movedToTrash);
    sounds.play(Sounds::Event::restored);
}

TEST_F(CanberraSoundsTest, nobodyWaitsForACardThatHangs) {
    // In a process of its own: the thread that hangs stays to its end.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto playOnCardThatHangs = [this] {
        // Opening it to write waits until somebody reads.
        const QByteArray card = QFile::encodeName(output);
        ::mkfifo(card.constData(), 0600);
        {
            CanberraSounds sounds(setting());
            sounds.play(Sounds::Event::movedToTrash);
            sounds.play(Sounds::Event::restored);
        }
        const int reader = ::open(card.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        const auto isOpenedByThePlayer = [reader] {
            pollfd state{reader, POLLIN, 0};
            return ::poll(&state, 1, 0) > 0;
        };
        std::_Exit(eventually(isOpenedByThePlayer) ? 0 : 1);
    };
    EXPECT_EXIT(playOnCardThatHangs(), testing::ExitedWithCode(0), "");
}
