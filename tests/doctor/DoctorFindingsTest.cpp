#include "doctor/DoctorFindings.h"

#include "support/FakeScreenCapturePreferences.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace tembra;

using State = Finding::State;

TEST(DoctorFindings, theToolHasToSaveWhereCapturesAreLookedFor) {
    struct Case {
        ScreenshotDestination destination;
        std::optional<QString> folder;
        State state;
    };
    for (const Case &c : {Case{ScreenshotDestination::toFolder(u"/shots"_s), u"/shots"_s, State::ok},
                          Case{ScreenshotDestination::toFolder(u"/shots"_s), std::nullopt, State::ok},
                          Case{ScreenshotDestination::toFolder(u"/other"_s), u"/shots"_s, State::limited},
                          Case{ScreenshotDestination::toClipboard(), u"/shots"_s, State::limited},
                          Case{ScreenshotDestination::toOther(u"mail"_s), u"/shots"_s, State::limited}}) {
        const FakeScreenCapturePreferences tool;
        const Finding found = toolFinding(tool, c.destination, c.folder);
        EXPECT_EQ(found.state, c.state) << found.text.toStdString();
        EXPECT_EQ(found.remedy.isEmpty(), c.state == State::ok);
        EXPECT_TRUE(found.text.startsWith(tool.toolName()));
    }
}

TEST(DoctorFindings, aRefusedShortcutIsBrokenWhateverTheDesktopOffers) {
    const Finding desktop{State::ok, u"Keys are to be had."_s, {}};
    DoctorSubject subject{.shortcutTitle = u"Super+W"_s, .shortcutError = u"It is taken."_s};
    EXPECT_EQ(shortcutFinding(subject, desktop).state, State::ok) << "it is switched off";
    subject.isShortcutOn = true;
    const Finding refused = shortcutFinding(subject, desktop);
    EXPECT_EQ(refused.state, State::broken);
    EXPECT_EQ(refused.text, u"It is taken."_s);
    EXPECT_FALSE(refused.remedy.isEmpty());
    subject.shortcutError.reset();
    subject.isShortcutTried = false;
    EXPECT_EQ(shortcutFinding(subject, desktop).state, State::limited) << "nobody has tried it";
    subject.isShortcutTried = true;
    EXPECT_EQ(shortcutFinding(subject, desktop).text, u"Super+W. Keys are to be had."_s);
}

TEST(DoctorFindings, languagesThatAreMissingAreNamedWithTheirRemedy) {
    const std::vector<TextRecognizer::Language> installed{{u"eng"_s, u"English"_s},
                                                          {u"fra"_s, u"français"_s}};
    const Finding missing{State::limited, u"%1, not %2"_s, u"install %1"_s};
    EXPECT_EQ(languagesFinding(installed, {u"eng"_s}, missing).state, State::ok);
    EXPECT_EQ(languagesFinding(installed, {u"deu"_s, u"eng"_s, u"rus"_s}, missing),
              (Finding{State::limited, u"English, not deu, rus"_s, u"install deu"_s}));
    EXPECT_EQ(languagesFinding(installed, {u"chi_sim"_s}, missing),
              (Finding{State::broken, u", not chi_sim"_s, u"install chi-sim"_s}))
        << "nothing is read, and the package is named as it is";
    const Error none{TextRecognizer::errorDomain, TextRecognizer::noLanguage, u"None is installed."_s, {}};
    EXPECT_EQ(languagesFinding(tl::unexpected(none), {u"eng"_s}, missing).state, State::broken);
}
