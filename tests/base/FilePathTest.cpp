#include "base/FilePath.h"

#include <gtest/gtest.h>

using namespace tembra;

TEST(FilePathTest, everyNameComesBackByteForByte) {
    for (const QByteArray &bytes :
         {QByteArray("/plain"), QByteArray(""), QByteArray("/\xc3\xa4\xf0\x9f\x98\x80"), QByteArray("\xff"),
          QByteArray("/a\xff\xfe/b\x80"), QByteArray("/cut off \xf0\x9f\x98"), QByteArray("\xc3\xc3\xa4"),
          // A lone surrogate as UTF-8 would have it, and one after a character of two units.
          QByteArray("/\xed\xb2\x80"), QByteArray("/\xf0\x9f\x98\x80\xb2")})
        EXPECT_EQ(pathBytes(pathFromBytes(bytes)), bytes) << bytes.toPercentEncoding().constData();
    EXPECT_EQ(pathFromBytes("/\xc3\xa4"), QStringLiteral("/ä"));
    EXPECT_NE(pathFromBytes("\xff"), pathFromBytes("\xfe"));
}
