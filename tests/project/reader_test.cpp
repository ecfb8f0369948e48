#include "project/reader.h"

#include "basics/numbers.h"
#include "project/read_columns.h"
#include "project/writer.h"
#include "scenes/scenes.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zentrik {

namespace {

const std::string front = "Zentrik\r\nTitle\r\n";
const std::string global = "Global Settings : 2 : 3 : 4 : 5 : 6 : 7 : 8 : 9 : 10 : 11 : 12\r\n";

std::string linkLine(const std::string& n1 = "1", const std::string& restLength = "5") {
    return "9 : True : " + n1 + " : 77 : " + restLength +
           " : 5 : 5 : False : 0 : 0 : False : 0 : 0 : False : 0 : 0 : False\r\n";
}

std::string nodeLine(const std::string& x = "1", const std::string& used = "True") {
    return "9 : " + used + " : " + x +
           " : 2 : 0 : 0 : 0 : 0 : 1 : False : False : False : 0 : 0 : 0 : 0 : <none> : 0 : -1 : 0 : False : "
           " : 0 "
           ": 0 : False : \r\n";
}

Project read(const std::string& bytes) {
    Reading reading = parseProject(bytes);
    EXPECT_FALSE(reading.problem) << reading.problem->text;
    return reading.project.value_or(Project{});
}

TEST(ProjectReader, FollowsTheRulesInTheirOrder) {
    const std::string file = front + linkLine() + "no section yet : : :\r\n; comment\r\n" +
                             "LINKS and more\r\n" + linkLine("3") + "; comment\r\n\r\n  \r\n" + "nOdEs\r\n" +
                             nodeLine("10") + "global" + global.substr(6) + nodeLine("20") + "Links\r\n" +
                             linkLine("-4") + "\r\n";
    std::string lineFeedsOnly = file;
    std::erase(lineFeedsOnly, '\r');
    lineFeedsOnly.pop_back();
    for (const std::string& bytes :
         {file, lineFeedsOnly, lineFeedsOnly.substr(0, lineFeedsOnly.size() - 1)}) {
        const Project project = read(bytes);
        EXPECT_EQ(project.title, "Title");
        ASSERT_EQ(project.Links.size(), 3u);
        EXPECT_EQ(project.Links[1].N1, 3);
        EXPECT_EQ(project.Links[2].N1, -4);
        EXPECT_EQ(project.Links[2].N2, 77);
        ASSERT_EQ(project.Nodes.size(), 3u);
        EXPECT_EQ(project.Nodes[1].X, 10);
        EXPECT_EQ(project.Nodes[2].X, 20);
        EXPECT_FALSE(project.Nodes[0].Used);
        EXPECT_EQ(project.global.value().timerPeriod, 8);
        EXPECT_EQ(project.global.value().AnimationTime, 12);
    }
}

TEST(ProjectReader, TakesTheSecondLineAsTitleWhateverItHolds) {
    for (const std::string title : {"", "global", "Nodes", ";", " a : b "}) {
        const Project project = read("Zentrik 2\n" + title + "\n" + linkLine());
        EXPECT_EQ(project.title, title);
        EXPECT_EQ(project.Nodes.size() + project.Links.size(), 2u);
        EXPECT_FALSE(project.global);
    }
    EXPECT_EQ(read("Zentrik\nno line end").title, "no line end");
}

TEST(ProjectReader, ReadsTheFormsOfTruthAndNumber) {
    const std::pair<const char*, bool> truths[] = {{"tRUE", true}, {"FALSE", false}, {"0", false},
                                                   {"-1", true},   {"0.5", true},    {" True ", true},
                                                   {"0.0", false}};
    for (const auto& [text, value] : truths)
        EXPECT_EQ(read(front + "Nodes\n" + nodeLine("1", text)).Nodes.at(1).Used, value) << text;
    const std::pair<const char*, std::int32_t> wholes[] = {{"-2147483648", -2147483647 - 1},
                                                           {"2147483647.4", 2147483647},
                                                           {"2.5", 2},
                                                           {"-3.5", -4},
                                                           {" +7 ", 7},
                                                           {"1e3", 1000},
                                                           {"1e-999", 0}};
    for (const auto& [text, value] : wholes)
        EXPECT_EQ(read(front + "Nodes\n" + nodeLine(text)).Nodes.at(1).X, value) << text;
    const std::pair<const char*, float> reals[] = {
        {"1E+07", 1e7F}, {"-.25", -0.25F}, {"3.402823E+38", 3.402823e38F},
        {"1e-60", 0},    {"5.", 5},        {"-0", 0}};
    for (const auto& [text, value] : reals) {
        const float real = read(front + "Links\n" + linkLine("1", text)).Links.at(1).RestLength;
        EXPECT_EQ(real, value) << text;
        EXPECT_EQ(std::signbit(real), std::signbit(value)) << text;
    }
}

TEST(ProjectReader, ReadsANodeWhoseLastBlankAnEditorHasTrimmed) {
    std::string trimmed = nodeLine("7");
    trimmed.erase(trimmed.find_last_of(' '), 1);
    const Project project = read(front + "Nodes\r\n" + trimmed + nodeLine("8"));
    ASSERT_EQ(project.Nodes.size(), 3u);
    EXPECT_EQ(project.Nodes[1].X, 7);
    EXPECT_EQ(project.Nodes[1].Res8, "");
}

TEST(ProjectReader, TakesNothingOfAFileWithAMalformedLine) {
    const std::string start = front + "Nodes\r\n" + nodeLine() + "Links\r\n" + linkLine();  // lines 1 to 6
    const std::pair<std::string, const char*> cases[] = {
        {linkLine("x"), "field 3 (N1) is not a whole number: x"},
        {linkLine(""), "field 3 (N1) is not a whole number: "},
        {linkLine("2147483648"), "field 3 (N1) is not a whole number: 2147483648"},
        {linkLine("1 2"), "field 3 (N1) is not a whole number: 1 2"},
        {linkLine("1", "nan"), "field 5 (RestLength) is not a number: nan"},
        {linkLine("1", "-inf"), "field 5 (RestLength) is not a number: -inf"},
        {linkLine("1", "1e39"), "field 5 (RestLength) is not a number: 1e39"},
        {linkLine("1", "1e999"), "field 5 (RestLength) is not a number: 1e999"},
        {linkLine("1", "0x10"), "field 5 (RestLength) is not a number: 0x10"},
        {linkLine("1", "1,5"), "field 5 (RestLength) is not a number: 1,5"},
        {linkLine("1", std::string("a\0\n", 2)), "field 5 (RestLength) is not a number: a?"},
        {"1 : True : 1", "field 4 (N2) is missing."},
        {"1", "field 2 (Used) is missing."},
        {std::string(1 << 20, 'x'), "field 2 (Used) is missing."},
        {"1 : " + std::string(1 << 20, ':'),
         "field 2 (Used) is neither True nor False: ::::::::::::::::::::::::::::::::::::::::..."},
        {"1 : True : 1 :", "field 3 (N1) is not a whole number: 1 :"},
        {"Global Settings : 1 : 2", "field 4 (Viscosity) is missing."},
        {"Nodes\r\n" + nodeLine("", "maybe"), "field 2 (Used) is neither True nor False: maybe"},
    };
    for (const auto& [line, text] : cases) {
        const Reading reading = parseProject(start + line + "\r\n" + nodeLine() + global);
        ASSERT_TRUE(reading.problem && !reading.project) << text;
        EXPECT_EQ(reading.problem->line, line.starts_with("Nodes") ? 8u : 7u);
        EXPECT_EQ(reading.problem->text, text);
    }
}

// A row of an older file ends before the newer columns; what was there from the start must be there.
TEST(ProjectReader, LeavesNewerColumnsOfAnOlderFileAsTheyAre) {
    struct Grown {
        std::int32_t old = 1;
        float newer = 2;
        std::string newest = "three";
    };
    const Column<Grown> columns[] = {{"old", &Grown::old},
                                     {.name = "newer", .member = &Grown::newer, .newer = true},
                                     {.name = "newest", .member = &Grown::newest, .newer = true}};
    const std::pair<const char*, const char*> cases[] = {
        {"9", "field 2 (old) is missing. 1 2 three"},
        {"9 : 5", " 5 2 three"},
        {"9 : 5 : 7", " 5 7 three"},
        {"9 : 5 : x", "field 3 (newer) is not a number: x 5 2 three"},
        {"9 : 5 : 7 : ", " 5 7 "},
    };
    for (const auto& [line, result] : cases) {
        Grown it;
        const ReadProblems problems = readColumns(line, columns, it, Wanted::firstProblem);
        const std::string problem = problems.empty() ? "" : problems.front().text;
        EXPECT_EQ(problem + " " + std::to_string(it.old) + " " + realText(it.newer) + " " + it.newest,
                  result);
    }
}

TEST(ProjectReader, RefusesWhatIsNoProject) {
    for (const std::string bytes : {"", "Zentri", "zentrik\r\nTitle\r\n", "\xEF\xBB\xBFZentrik\r\nTitle\r\n",
                                    "Zentrik", "Zentrik   web page\r\n"}) {
        const Reading reading = parseProject(bytes);
        EXPECT_FALSE(reading.project);
        EXPECT_EQ(reading.problem.value().line, bytes.starts_with("Zentrik") ? 2u : 0u);
    }
}

// Cut off anywhere and with any byte spoilt, a file is either read or refused.
TEST(ProjectReader, SurvivesDamage) {
    const Editor ed = scenes::latticeOf(4);
    const std::string good = projectBytes(ed);
    for (std::size_t i = 0; i <= good.size(); ++i) {
        const Reading cut = parseProject(good.substr(0, i));
        ASSERT_NE(cut.project.has_value(), cut.problem.has_value()) << i;
        for (const char c : {'\0', '\n', '\r', ':', ' ', '\xFF', 'e', '-'}) {
            std::string spoilt = good;
            spoilt[std::min(i, good.size() - 1)] = c;
            const Reading reading = parseProject(spoilt);
            ASSERT_NE(reading.project.has_value(), reading.problem.has_value()) << i;
            if (!reading.project) continue;
            ASSERT_LE(reading.project->Nodes.size(), ed.Nodes.size() + 1) << i;
        }
    }
}

}  // namespace

}  // namespace zentrik
