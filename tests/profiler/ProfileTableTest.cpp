// Profiles as a table for other programs.
#include "statistics/ProfileTable.h"

#include "csv/TableReader.h"

#include <gtest/gtest.h>

namespace {

using statistics::ColumnProfile;
using statistics::ProfileTable;

constexpr char kHeader[] = "column,type,count,missing,distinct,minimum,maximum,mean,standard_deviation,quantile_5,"
                           "quantile_25,median,quantile_75,quantile_95\r\n";

std::vector<ColumnProfile> Profiles(const std::string& bytes) {
    csv::MemorySource source(bytes);
    const csv::ReadResult read = csv::ReadTable(source, "t.csv");
    std::vector<ColumnProfile> profiles;
    for (const csv::Column& column : read.table.columns)
        profiles.push_back(statistics::Profile(column, read.table.rows));
    return profiles;
}

TEST(ProfileTable, HasARecordForEachColumn) {
    EXPECT_EQ(ProfileTable(Profiles("n,day,town,none\n1,2024-02-01,Oslo,\n2,2024-01-31,Riga,\n,2024-02-01,Oslo,\n"
                                    "3,2024-02-01,Oslo,\n4,2024-02-01,,\n5,2024-02-01,Oslo,\n")),
              std::string(kHeader) + "n,number,5,1,,1,5,3,1.5811388300841898,1.2,2,3,4,4.8\r\n"
                                     "day,date,6,0,2,2024-01-31,2024-02-01,,,,,,,\r\n"
                                     "town,text,5,1,2,,,,,,,,,\r\n"
                                     "none,empty,0,6,,,,,,,,,,\r\n");
}

TEST(ProfileTable, OneNumberHasNoStandardDeviation) {
    EXPECT_EQ(ProfileTable(Profiles("n\n0.1\n")),
              std::string(kHeader) + "n,number,1,0,,0.1,0.1,0.1,,0.1,0.1,0.1,0.1,0.1\r\n");
}

TEST(ProfileTable, QuotesNamesThatNeedIt) {
    const std::string table = ProfileTable(Profiles("\"a, b\",\"the \"\"c\"\"\"\nx,y\n"));
    EXPECT_EQ(table, std::string(kHeader) + "\"a, b\",text,1,0,1,,,,,,,,,\r\n"
                                            "\"the \"\"c\"\"\",text,1,0,1,,,,,,,,,\r\n");
}

TEST(ProfileTable, CanBeReadAgain) {
    csv::MemorySource source(ProfileTable(Profiles("\"a, b\",c\n0.1,1e300\n0.7,-1e-300\n")));
    const csv::ReadResult again = csv::ReadTable(source, "t.csv");
    ASSERT_EQ(again.outcome, csv::ReadResult::Outcome::Read);
    EXPECT_TRUE(again.messages.empty());
    ASSERT_EQ(again.table.columns.size(), 14u);
    EXPECT_EQ(again.table.columns[0].texts[0].text, "a, b");
    EXPECT_EQ(again.table.columns[5].numbers, (std::vector<double>{0.1, -1e-300}));
    EXPECT_EQ(again.table.columns[6].numbers, (std::vector<double>{0.7, 1e300}));
}

} // namespace
