#include "app/CommandLine.h"

#include <gtest/gtest.h>

using namespace tembra;
using Verb = CommandLine::Verb;

namespace {

QStringList words(const char *line) {
    return QString::fromUtf8(line).split(u' ', Qt::SkipEmptyParts);
}

} // namespace

TEST(CommandLine, understandsEveryCommand) {
    const std::vector<std::pair<const char *, CommandLine>> table{
        {"", {}},
        {"--background", {.background = true}},
        {"open", {.verb = Verb::open}},
        {"open --tab text", {.verb = Verb::open, .tab = QStringLiteral("text")}},
        {"status --json", {.verb = Verb::status, .json = true}},
        {"scan --json /a", {.verb = Verb::scan, .path = QStringLiteral("/a"), .json = true}},
        {"scan /a --json", {.verb = Verb::scan, .path = QStringLiteral("/a"), .json = true}},
        {"add a -b", {.verb = Verb::add, .files = {QStringLiteral("a"), QStringLiteral("-b")}}},
        {"add -- a --", {.verb = Verb::add, .files = {QStringLiteral("a"), QStringLiteral("--")}}},
        {"quit", {.verb = Verb::quit}},
    };
    for (const auto &[line, expected] : table) {
        const auto parsed = CommandLine::parse(words(line));
        ASSERT_TRUE(parsed) << line;
        EXPECT_EQ(*parsed, expected) << line;
    }
}

TEST(CommandLine, refusesWhatItDoesNotUnderstand) {
    for (const char *line :
         {"fly", "open --tab", "open --tab sky", "close now", "scan", "scan --json", "scan a b",
          "--background open", "open --background", "add", "add --", "toggle --json", "-x"})
        EXPECT_FALSE(CommandLine::parse(words(line))) << line;
}
