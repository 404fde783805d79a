#include "profiles/BoxGroups.h"
#include "profiles/XmlFile.h"
#include "support/RunWorld.h"

namespace tavrene::profiles {
namespace {

TEST(BoxGroupsTest, FirstWordsOfTheNamesTellTheGroups) {
    const std::vector<std::pair<std::vector<std::string>, std::vector<BoxGroup>>> cases = {
        {{"Sex female", "Alone", "Sex male", "Age 40 to 64"}, {{"Sex", {"Sex female", "Sex male"}}}},
        {{"Main road: yes", "Main road: no"}, {{"Main road", {"Main road: yes", "Main road: no"}}}},
        {{"Q 1 a", "Q 1 b", "Q 2 a", "Q 2 b"}, {{"Q 1", {"Q 1 a", "Q 1 b"}}, {"Q 2", {"Q 2 a", "Q 2 b"}}}},
        {{"Q1 strongly agree", "Q1 agree", "Q1 strongly object"},
         {{"Q1", {"Q1 strongly agree", "Q1 agree", "Q1 strongly object"}}}},
        {{"Rating 1", "Rating 2"}, {{"Rating", {"Rating 1", "Rating 2"}}}},
        {{"Q1_yes", "Q1_no"}, {{"Q1", {"Q1_yes", "Q1_no"}}}},
        {{"Same name", "Same name"}, {{"Same", {"Same name", "Same name"}}}},
        {{"-- yes", "-- no", " ", ""}, {{"--", {"-- yes", "-- no"}}}}};
    for (const auto& [names, groups] : cases)
        EXPECT_EQ(GroupsByName(names), groups) << names.front();
}

class BoxGroupsFileTest : public test::RunWorld {
  protected:
    const std::string profile_ = folders_.Profiles + "Club day.Tvp";
    const std::string path_ = folders_.Profiles + "Club day.groups.xml";
    const std::vector<std::string> names_ = {"Sex female", "Sex male"};
};

TEST_F(BoxGroupsFileTest, WhatIsSetGoesBeforeWhatNamesTell) {
    EXPECT_EQ(ReadBoxGroups(files_, profile_), std::nullopt);
    EXPECT_EQ(GroupsOf(files_, profile_, names_).size(), 1U);
    const std::vector<BoxGroup> groups = {{"größer <&\">", {"a", "b & c"}, Takes::One},
                                          {"", {}, Takes::AnyNumber},
                                          {"x", {"a", "a"}, Takes::AtLeastOne}};
    WriteBoxGroups(files_, profile_, groups);
    EXPECT_EQ(GroupsOf(files_, profile_, names_), groups);
    EXPECT_TRUE(files_.List(folders_.Profiles, "*.Tvp").empty());
    WriteBoxGroups(files_, profile_, {});
    EXPECT_TRUE(GroupsOf(files_, profile_, names_).empty());
    DeleteBoxGroups(files_, profile_);
    DeleteBoxGroups(files_, profile_);
    EXPECT_EQ(GroupsOf(files_, profile_, names_).size(), 1U);
}

TEST_F(BoxGroupsFileTest, AFileThatIsSomethingElseIsRefused) {
    for (const char* const text :
         {"", "<Tavrene/>", "<BoxGroups><Group Name='a' Takes='two'/></BoxGroups>"}) {
        test::WriteText(path_, text);
        EXPECT_THROW(GroupsOf(files_, profile_, names_), DocumentError) << text;
    }
}

}  // namespace
}  // namespace tavrene::profiles
