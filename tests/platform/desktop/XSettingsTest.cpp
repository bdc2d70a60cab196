#include "platform/linux/desktop/XSettings.h"

#include <gtest/gtest.h>

using namespace tembra;

namespace {

QByteArray hex(const char *digits) {
    return QByteArray::fromHex(digits);
}

} // namespace

TEST(XSettings, areReadInBothByteOrders) {
    // "Ab" = -2, a colour, "abcd" = "x".
    const QByteArray lastFirst = hex("00000000 07000000 03000000"
                                     "0000 0200 41620000 05000000 feffffff"
                                     "0200 0100 43000000 05000000 1111222233334444"
                                     "0100 0400 61626364 05000000 01000000 78000000");
    const QByteArray firstFirst = hex("01000000 00000007 00000003"
                                      "0000 0002 41620000 00000005 fffffffe"
                                      "0200 0001 43000000 00000005 1111222233334444"
                                      "0100 0004 61626364 00000005 00000001 78000000");
    const XSettings expected{{"Ab", -2}, {"abcd", QByteArray("x")}};
    EXPECT_EQ(parseXSettings(lastFirst), expected);
    EXPECT_EQ(parseXSettings(firstFirst), expected);
    // Only the padding may be missing.
    EXPECT_EQ(parseXSettings(lastFirst.chopped(3)), expected);
    for (qsizetype size = 0; size < lastFirst.size() - 3; ++size)
        EXPECT_EQ(parseXSettings(lastFirst.first(size)), XSettings()) << size;
}

TEST(XSettings, ofAnotherFormAreNone) {
    const char *const cases[]{
        // No settings at all.
        "00000000 07000000 00000000",
        // Another kind of setting.
        "00000000 07000000 01000000 0300 0200 41620000 05000000 feffffff",
        // More settings, a longer name and a longer text than there are.
        "00000000 07000000 ffffffff 0000 0200 41620000 05000000 feffffff",
        "00000000 07000000 01000000 0000 ffff 41620000 05000000 feffffff",
        "00000000 07000000 01000000 0100 0200 41620000 05000000 ffffffff 78000000",
        "00000000 07000000 01000000 0100 0200 41620000 05000000 ffffff7f 78000000",
    };
    for (const char *const bytes : cases)
        EXPECT_EQ(parseXSettings(hex(bytes)), XSettings()) << bytes;
}
