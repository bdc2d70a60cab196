#include "shelf/TypeAhead.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace std::chrono_literals;
using namespace tembra;

namespace {

const QStringList names{QStringLiteral("Alpha 1"), QStringLiteral("alpine"), QStringLiteral("Beta 2"),
                        QStringLiteral("Gamma alp")};

std::optional<int> find(const char *text, int start) {
    return TypeAhead::find(QString::fromLatin1(text), static_cast<int>(names.size()), start,
                           [](int index) { return names[index]; });
}

} // namespace

TEST(TypeAhead, findsTheNextNameThatBeginsSoElseOneThatHoldsIt) {
    struct Row {
        const char *text;
        int start;
        std::optional<int> found;
    };
    for (const Row &row : {Row{"al", 0, 0}, Row{"AL", 1, 1}, Row{"al", 2, 0}, Row{"alp", 3, 0},
                           Row{"2", 0, 2}, Row{"ma a", 1, 3}, Row{"z", 0, std::nullopt}})
        EXPECT_EQ(find(row.text, row.start), row.found) << row.text << " from " << row.start;
}

TEST(TypeAhead, lettersThatFollowEachOtherCloselyAreOneSearch) {
    TypeAhead typed;
    EXPECT_EQ(typed.append(QStringLiteral("a"), 5s), QStringLiteral("a"));
    EXPECT_EQ(typed.append(QStringLiteral("l"), 5s + TypeAhead::pause), QStringLiteral("al"));
    EXPECT_EQ(typed.append(QStringLiteral("b"), 5s + 2 * TypeAhead::pause + 1ms), QStringLiteral("b"));
}
