#include "AppKit/TextRows.h"

#include <gtest/gtest.h>

namespace {

std::vector<std::string> rowsOf(const TextRows& text)
{
    std::vector<std::string> rows;
    for (std::size_t i = 0; i < text.count(); ++i)
        rows.emplace_back(text.row(i));
    return rows;
}

}

TEST(TextRows, cutsLinesBehindBlanksAndSlashesAndElseWhereTheyAreFull)
{
    struct Case {
        std::string text;
        std::vector<std::string> rows;
    };
    for (const Case& c : {
             Case { "", {} },
             Case { "\n", { "" } },
             Case { "a\n\nb\n", { "a", "", "b" } },
             Case { "12345678\n", { "12345678" } },
             Case { "123456789\n", { "12345678", "9" } },
             Case { "12345 789\n", { "12345 ", "789" } },
             Case { "1 3456789\n", { "1 345678", "9" } },
             Case { "/usr/local/bin", { "/usr/", "local/", "bin" } },
             Case { "äöüäöüäöü", { "äöüäöüäö", "ü" } },
             Case { "中文中文中文", { "中文中文", "中文" } },
         }) {
        TextRows text;
        text.wrapAt(8);
        text.append(c.text);
        EXPECT_EQ(rowsOf(text), c.rows) << c.text;
    }
}

TEST(TextRows, growsAndIsCutAnewWithoutAChangeToTheText)
{
    TextRows text;
    text.wrapAt(8);
    const std::string whole = "unfinished line that goes on\nnext\n\n/a/very/long/path\nend";
    for (const char byte : whole)
        text.append(std::string(1, byte));
    const auto grown = rowsOf(text);
    EXPECT_EQ(text.text(), whole);
    EXPECT_EQ(text.rows(0, text.count() - 1), whole);

    text.wrapAt(80);
    EXPECT_EQ(text.count(), 5u);
    EXPECT_EQ(text.rows(1, 2), "next\n\n");
    text.wrapAt(8);
    EXPECT_EQ(rowsOf(text), grown);
}
