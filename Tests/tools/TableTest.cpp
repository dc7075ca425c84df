#include <gtest/gtest.h>

#include "Table.h"
#include "Text.h"

namespace vmetrics {
namespace {

const std::string kCut(CutMark());

Table TwoRows() {
  Table table({"NAME", "COUNT", "", "MAX"});
  table.AddRow({"short", "1", "+1", "10"});
  table.AddRow({"a longer name", "100000", "", "7"});
  return table;
}

TEST(TableTest, ColumnsAreAligned) {
  EXPECT_EQ(TwoRows().Text(80),
            "NAME            COUNT     MAX\n"
            "short               1 +1   10\n"
            "a longer name  100000       7\n");
}

TEST(TableTest, TableThatJustFitsStaysAsItIs) { EXPECT_EQ(TwoRows().Text(29), TwoRows().Text(80)); }

TEST(TableTest, LabelThatDoesNotFitHasALineForItself) {
  EXPECT_EQ(TwoRows().Text(28),
            "NAME    COUNT     MAX\n"
            "short       1 +1   10\n"
            "a longer name\n"
            "       100000       7\n");
}

TEST(TableTest, NothingFitsIntoNoWidth) {
  EXPECT_EQ(TwoRows().Text(5),
            "NAME\n"
            "   COUNT     MAX\n"
            "short\n"
            "       1 +1   10\n"
            "a lo" +
                kCut + "\n  100000       7\n");
}

TEST(TableTest, LinesOfTheirOwnTakeNoPartInTheColumns) {
  Table table({"NAME", "MAX"});
  table.AddLine("a line that is longer than all of the others");
  table.AddRow({"x", "1"});
  EXPECT_EQ(table.Text(20),
            "NAME  MAX\n"
            "a line that is long" +
                kCut + "\nx       1\n");
}

TEST(TableTest, WidthIsThatOfTheCharacters) {
  Table table({"NAME", "MAX"});
  table.AddRow({"连接", "1"});
  table.AddRow({"Grüße", "1"});
  EXPECT_EQ(table.Text(80),
            "NAME   MAX\n"
            "连接     1\n"
            "Grüße    1\n");
}

}  // namespace
}  // namespace vmetrics
