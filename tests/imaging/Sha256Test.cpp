#include "imaging/Sha256.h"

#include <gtest/gtest.h>

using namespace tembra;

// FIPS 180-4's examples.
TEST(Sha256Test, isLowerCaseHexadecimal) {
    EXPECT_EQ(sha256Hex(""), u"e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    EXPECT_EQ(sha256Hex("abc"), u"ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
}
