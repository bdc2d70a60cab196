#include "windows/settings/AutoCleanChange.h"

#include "settings/SettingsFixture.h"

using namespace tembra;

namespace {

using Period = ScreenshotAutoCleanPeriod;

// The wish meets a scripted count and a scripted user.
class AutoCleanChanges : public SettingsFixture {
protected:
    void SetUp() override {
        start();
        m_change = std::make_unique<AutoCleanChange>(
            *m_settings,
            AutoCleanChange::Actions{
                .preview = [this](Period, auto completion) { m_counted = std::move(completion); },
                .enable = [this](Period period) { m_settings->setScreenshotAutoClean(period); },
                .ask =
                    [this](const AutoCleanChange::Question &question, auto decide) {
                        m_questions.push_back(question);
                        m_decide = std::move(decide);
                    }});
        m_change->onSettled = [this] { ++m_settled; };
        m_change->onFailed = [this](const QString &title, const QString &message) {
            m_failures += title + u'|' + message;
        };
    }

    [[nodiscard]] Period period() const { return m_settings->state().screenshotAutoClean; }

    std::unique_ptr<AutoCleanChange> m_change;
    std::function<void(Result<int>)> m_counted;
    std::vector<AutoCleanChange::Question> m_questions;
    std::function<void(bool)> m_decide;
    QStringList m_failures;
    int m_settled = 0;
};

} // namespace

TEST_F(AutoCleanChanges, enablingAsksWithWhatItMovesAndTakesTheAnswer) {
    m_change->request(Period::sevenDays);
    EXPECT_EQ(period(), Period::never);
    m_counted(12);
    ASSERT_EQ(m_questions.size(), 1);
    EXPECT_EQ(m_questions[0].title, QStringLiteral("Enable auto-clean?"));
    EXPECT_EQ(m_questions[0].text,
              QStringLiteral("Moves old screenshots and recordings to Trash, including existing ones. Pinned "
                             "items stay.\n\n12 files will move to Trash when you click Enable. Pinned files "
                             "stay."));
    m_decide(false);
    EXPECT_EQ(period(), Period::never);
    m_change->request(Period::sevenDays);
    m_counted(12);
    m_decide(true);
    EXPECT_EQ(period(), Period::sevenDays);
    EXPECT_EQ(m_settled, 2);
}

TEST_F(AutoCleanChanges, anotherPeriodAsksOnlyWhereItMovesSomething) {
    m_settings->setScreenshotAutoClean(Period::thirtyDays);
    m_change->request(Period::oneDay);
    m_counted(3);
    EXPECT_EQ(m_questions.at(0).title, QStringLiteral("Change auto-clean?"));
    EXPECT_EQ(m_questions.at(0).text,
              QStringLiteral("3 files will move to Trash when you click Change. Pinned files stay."));
    m_decide(false);
    m_change->request(Period::sevenDays);
    m_counted(0);
    EXPECT_EQ(m_questions.size(), 1);
    EXPECT_EQ(period(), Period::sevenDays);
    m_change->request(Period::never);
    EXPECT_EQ(period(), Period::never);
    EXPECT_EQ(m_questions.size(), 1);
}

TEST_F(AutoCleanChanges, aFailedCountChangesNothingAndSaysWhy) {
    m_change->request(Period::oneDay);
    m_counted(failure(error()));
    EXPECT_EQ(m_failures, QStringList{QStringLiteral("Couldn’t check screenshots|It does not work.")});
    EXPECT_EQ(period(), Period::never);
    EXPECT_TRUE(m_questions.empty());
}

TEST_F(AutoCleanChanges, onlyTheLatestWishIsAskedAboutAndAnswered) {
    m_change->request(Period::oneDay);
    const auto counted = m_counted;
    m_change->request(Period::thirtyDays);
    counted(5);
    EXPECT_TRUE(m_questions.empty());
    m_counted(5);
    const auto decide = m_decide;
    m_change->request(Period::never);
    decide(true);
    EXPECT_EQ(period(), Period::never);
}

TEST_F(AutoCleanChanges, anAnswerAboutOneFolderSaysNothingOfAnother) {
    ASSERT_TRUE(m_settings->grantScreenshotsFolder(makeFolder("counted"), false, false));
    m_change->request(Period::oneDay);
    m_counted(5);
    ASSERT_TRUE(m_settings->grantScreenshotsFolder(makeFolder("other"), false, false));
    m_decide(true);
    EXPECT_EQ(period(), Period::never);
    EXPECT_EQ(m_settled, 1);
}
