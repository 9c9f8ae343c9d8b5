// Reports as a client reads them.
#include "client/status_report.h"

#include <gmock/gmock.h>

namespace quorrin {
namespace {

using testing::ElementsAre;

std::vector<std::string> textsOf(std::string_view read) {
    std::vector<std::string> texts;
    for (const StatusReport& report : reportsIn(read).value_or(std::vector<StatusReport>{}))
        texts.push_back(report.text());
    return texts;
}

TEST(StatusReportTest, OneReportHasSixFields) {
    const auto reports = reportsIn("1.5,2,0,3,comm wrong,0");
    ASSERT_TRUE(reports);
    EXPECT_THAT(*reports, ElementsAre(StatusReport{"1.5", "2", "0", "3", "comm wrong", "0"}));
}

TEST(StatusReportTest, FieldsMayBeEmptyAndMayHoldAnyText) {
    EXPECT_THAT(textsOf("here,,0,,JOY,0"), ElementsAre("here,,0,,JOY,0"));
}

TEST(StatusReportTest, ReportsThatRanTogetherAreToldApartByTheZeroOfTheSixthField) {
    EXPECT_THAT(textsOf("0,0,0,1,JOY,00,0,0,1,IDLE,0"), ElementsAre("0,0,0,1,JOY,0", "0,0,0,1,IDLE,0"));
    EXPECT_THAT(textsOf("0,0,0,1,JOY,01.5,0,0,1,JOY,0-3,0,0,2,JOY,0"),
                ElementsAre("0,0,0,1,JOY,0", "1.5,0,0,1,JOY,0", "-3,0,0,2,JOY,0"));
}

TEST(StatusReportTest, AnEmptyFirstFieldBehindAnotherReportStaysEmpty) {
    EXPECT_THAT(textsOf(",0,0,1,JOY,0,0,0,1,IDLE,0"), ElementsAre(",0,0,1,JOY,0", ",0,0,1,IDLE,0"));
}

TEST(StatusReportTest, APartOfAReportCannotBeRead) {
    EXPECT_FALSE(reportsIn("0,0,0,1,JO"));
    EXPECT_FALSE(reportsIn("Y,0"));
    EXPECT_FALSE(reportsIn(""));
}

TEST(StatusReportTest, AReportAndAPartOfAnotherCannotBeToldApart) {
    EXPECT_FALSE(reportsIn("0,0,0,1,JOY,00,0,0"));
}

TEST(StatusReportTest, ACommaTypedIntoABoxIsNotGuessedAt) {
    EXPECT_FALSE(reportsIn("1,5,0,0,1,JOY,0"));
}

TEST(StatusReportTest, ASixthFieldThatIsNoZeroEndsNothing) {
    EXPECT_FALSE(reportsIn("0,0,0,1,JOY,70,0,0,1,IDLE,0"));
}

}  // namespace
}  // namespace quorrin
