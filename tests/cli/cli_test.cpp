// The companion program's commands on one project: check, info and run.

#include "cli_rig.h"
#include "failing_disk.h"
#include "measure/state_hash.h"
#include "scenes/visit.h"
#include "sim/model_run.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <charconv>

namespace zentrik {
namespace {

using CheckCommand = CommandLine;

std::string link(const std::string& usedAndEnds) {
    return "1 : " + usedAndEnds + " : 1 : 1 : 5 : False : 0 : 0 : False : 0 : 0 : False : 0 : 0 : False\r\n";
}
std::string node(const std::string& usedAndPlace, const std::string& mass, const std::string& trigger) {
    return "1 : " + usedAndPlace + " : 0 : 0 : 0 : 0 : " + mass +
           " : False : False : False : 0 : 0 : 0 : 0 : <none> : 0 : " + trigger +
           " : 0 : False :  : 0 : 0 : False : \r\n";
}

TEST_F(CheckCommand, TellsEveryProblemOfEveryFile) {
    const std::string bad = file("bad.bot"), none = file("none.bot");
    putFile(bad,
            "Zentrik\r\nA title\r\nGlobal Settings : 1 : x : 0 : 0 : 0 : 10 : 0 : 1 : 0 : nan : 0\r\n"
            "Links\r\n" +
                link("True : 1 : 5") + link("True : y : 3") + link("True : 2 : 2") + link("False : 7 : 7") +
                "5 : True : 1\r\nNodes\r\n" + node("True : 5 : inf", "1", "-1") +
                node("True : 5 : 6", "1", "3") + node("False : 5 : 6", "1", "44") +
                node("True : 5 : 6", "0", "0"));
    const Said said = zentrikCli({"check", sample("walker"), bad, none, sample("cloth")});
    EXPECT_EQ(said.status, 1);
    EXPECT_EQ(said.out, "");
    const std::vector<std::string> expected{
        bad + ":3: field 3 (Friction) is not a number: x",
        bad + ":3: field 11 (scene height) is not a number: nan",
        bad + ":5: field 4 (N2 of link 1) names node 5, which does not exist",
        bad + ":6: field 3 (N1) is not a whole number: y",
        bad + ":6: field 4 (N2 of link 2) names node 3, whose slot is free",
        bad + ":7: field 4 (N2 of link 3) is its other end, too",
        bad + ":9: field 4 (N2) is missing.",
        bad + ":11: field 4 (Y) is not a whole number: inf",
        bad + ":12: field 19 (Res1, the trigger of node 2) names node 3, whose slot is free",
        bad + ":14: field 9 (Mass of node 4) is 0: it cannot be moved",
        none + ": There is no such file.",
    };
    EXPECT_EQ(linesOf(said.error), expected);

    const Said json = zentrikCli({"check", "--json", bad, "-"}, "Zentrik\nfrom standard input\n");
    EXPECT_EQ(json.status, 1);
    EXPECT_EQ(json.error, "");
    const QJsonArray files = QJsonDocument::fromJson(QByteArray::fromStdString(json.out)).array();
    ASSERT_EQ(files.size(), 2);
    const QJsonArray problems = files[0]["problems"].toArray();
    ASSERT_EQ(problems.size(), qsizetype(expected.size()) - 1);
    EXPECT_EQ(problems[8]["line"].toInt(), 12);
    EXPECT_EQ(problems[8]["field"].toInt(), 19);
    EXPECT_EQ(files[1]["problems"].toArray().size(), 0);
}

TEST_F(CheckCommand, FindsNothingInTheSamples) {
    std::vector<std::string> words{"check"};
    for (const auto& entry : std::filesystem::directory_iterator(ZENTRIK_SOURCE_DIR "/zoo"))
        words.push_back(entry.path().string());
    ASSERT_GT(words.size(), 20U);
    const Said said = zentrikCli(words);
    EXPECT_EQ(said.error + said.out, "");
    EXPECT_EQ(said.status, 0);
}

TEST(InfoCommand, TellsWhatIsThere) {
    const Said json = zentrikCli({"info", "--json", sample("walker"), sample("4 a muscle")});
    ASSERT_EQ(json.status, 0) << json.error;
    const QJsonValue walker = QJsonDocument::fromJson(QByteArray::fromStdString(json.out))[0];
    EXPECT_EQ(walker["title"].toString(), "Six legs out for a walk");
    EXPECT_EQ(walker["nodes"].toInt(), 28);
    EXPECT_NEAR(walker["mass"].toDouble(), 71.4, 1e-4);
    EXPECT_EQ(walker["animators"].toInt(), 12);
    EXPECT_EQ(walker["connected objects"].toInt(), 1);
    EXPECT_EQ(walker["extent"]["right"].toInt(), 5600);
    EXPECT_EQ(walker["settings"]["Viscosity"].toDouble(), 0.2);
    const Said text = zentrikCli({"info", "-"}, contentOf(sample("walker")));
    EXPECT_NE(text.out.find("\nsettings DeltaAngle: 3\n"), std::string::npos) << text.out;
}

using RunCommand = CommandLine;

std::string hexOf(std::uint64_t value) {
    char text[16];
    const auto end = std::to_chars(text, text + 16, value, 16).ptr;
    return std::string(16 - std::size_t(end - text), '0') + std::string(text, end) + "\n";
}

// As the window runs the samples, with the options of a first run.
TEST_F(RunCommand, StepsAsTheWindowDoes) {
    for (const char* name : {"walker", "8 a cannon", "marbles", "planets", "jelly"}) {
        Editor ed = scenes::openSample(ZENTRIK_SOURCE_DIR, name, scenes::smallestScene);
        scenes::start(ed);
        for (int step = 0; step < 400; ++step) scenes::tickSample(ed);
        const std::string barriers = ed.marks.mnuIgnoreBarriers ? "off" : "on";
        const Said said = zentrikCli({"run", sample(name), "--steps=400", "--hash", "--barriers", barriers});
        EXPECT_EQ(said.out, hexOf(stateHash(ed))) << name << said.error;
    }
}

TEST_F(RunCommand, WritesTheModelAsItIsThen) {
    const std::string out = file("out.bot"), bytes = contentOf(sample("walker"));
    EXPECT_EQ(zentrikCli({"run", "-", "-n0"}, bytes).out, bytes);
    ASSERT_EQ(zentrikCli({"run", "-", "--time", "2", "-o", out, "--hash"}, bytes).status, 0);
    EXPECT_NE(contentOf(out), bytes);
    const Said info = zentrikCli({"info", out});
    EXPECT_NE(info.out.find("clock: 1.999998\n"), std::string::npos) << info.out;

    const Said changed =
        zentrikCli({"run", sample("walker"), "-n0", "--set", "gravity=0.5", "--set",
                    "link 42,44..45.angle=33", "--set=Timer Period=40", "--set=node all.Locked=True"});
    ASSERT_EQ(changed.status, 0) << changed.error;
    EXPECT_NE(changed.out.find("Settings : 0.5 : 0.9 : 0.2 : 0 : 0.1 : 10 : 40 :"), std::string::npos);
    std::size_t angles = 0;
    for (const std::string& line : linesOf(changed.out))
        angles += line.find(" : True : 33 : ") != std::string::npos;
    EXPECT_EQ(angles, 3U);
}

TEST_F(RunCommand, EverySwitchIsHeard) {
    // Samples in which each option shows within the time.
    struct Case {
        const char *name, *option, *usual = "--slow=off";
    };
    for (const auto& [name, option, usual] :
         {Case{"walker", "--animator=off"}, Case{"wheel", "--walls=off"}, Case{"marbles", "--barriers=on"},
          Case{"wheel", "--ceiling=off", "--set=Gravity=-1"}, Case{"wheel", "--reverse=off"},
          Case{"walker", "--slow=on"}, Case{"planets", "--directional=off"},
          Case{"walker", "--set=NodeRadius=90"}}) {
        const Said without = zentrikCli({"run", sample(name), "-n4000", "--hash", usual});
        const Said with = zentrikCli({"run", sample(name), "-n4000", "--hash", usual, option});
        EXPECT_EQ(without.error + with.error, "");
        EXPECT_NE(without.out, with.out) << name << " " << option;
    }
}

TEST_F(RunCommand, GivesATableOfTheStepsAsked) {
    const Said said = zentrikCli(
        {"run", sample("7 a walker"), "-n", "10", "--table=-", "--every=5", "--nodes=9,1..2", "--links=8"});
    const std::vector<std::string> lines = linesOf(said.out);
    ASSERT_EQ(lines.size(), 4U) << said.error;
    EXPECT_TRUE(lines[0].starts_with("step,time (time units),node 9 x (twips),")) << lines[0];
    EXPECT_TRUE(lines[1].starts_with("0,0,3500,2450,0,0,0,555,4999.73787057357,1500,1500,0,0,")) << lines[1];
    EXPECT_TRUE(lines[2].starts_with("5,0.05,")) << lines[2];
    EXPECT_TRUE(lines[3].starts_with("10,0.09999999,")) << lines[3];
    const auto commas = [](const std::string& line) { return std::count(line.begin(), line.end(), ','); };
    for (const std::string& line : lines) EXPECT_EQ(commas(line), commas(lines[0]));
    const std::string table = file("table.csv");
    zentrikCli({"run", sample("7 a walker"), "-n", "10", "--table", table, "--every=5", "--nodes=9,1..2",
                "--links=8"});
    EXPECT_EQ(contentOf(table), said.out);
}

TEST_F(RunCommand, AModelThatCannotGoOnIsSaidAndKept) {
    const std::string massless = "Zentrik\n\nNodes\n" + node("True : 5 : 6", "0", "-1");
    const Said said = zentrikCli({"run", "-", "-n5"}, massless);
    EXPECT_EQ(said.status, 1);
    EXPECT_EQ(said.error,
              "zentrik-cli run: standard input: after step 0: Node 1 has a mass of 0: animation stopped!\n");
    EXPECT_NE(said.out.find("True : 5 : 6"), std::string::npos);
    const Said damaged = zentrikCli({"run", "-", "-n5"}, "Zentrik\n\nNodes\n1 : True : x\n");
    EXPECT_EQ(damaged.error, "zentrik-cli run: standard input:4: field 3 (X) is not a whole number: x\n");
    EXPECT_EQ(damaged.status, 1);
}

TEST_F(RunCommand, WrongOptionsAreSaid) {
    const std::string walker = sample("walker");
    using Case = std::pair<std::vector<std::string>, std::string>;
    const std::vector<Case> cases{
        {{}, "No command is given."},
        {{"rum"}, "There is no command \"rum\". Did you mean run?"},
        {{"run"}, "No file is given."},
        {{"run", walker, walker, "-n1"}, "One file is enough: " + walker},
        {{"run", walker}, "Either --steps or --time must say how far to run."},
        {{"run", walker, "-n1", "-t1"}, "Either --steps or --time must say how far to run."},
        {{"run", walker, "--stepz=1"}, "Unknown option 'stepz'."},
        {{"run", walker, "-n-1"}, "--steps takes a whole number from 0 on, not \"-1\"."},
        {{"run", walker, "-n1e3"}, "--steps takes a whole number from 0 on, not \"1e3\"."},
        {{"run", walker, "--time=soon"}, "--time takes a time, not \"soon\"."},
        {{"run", walker, "-t1", "--set=TimeInterval=0"},
         "--time 1 does not end with a TimeInterval of 0; try --steps."},
        {{"run", walker, "-n1", "--walls=maybe"}, "--walls takes \"on\" or \"off\", not \"maybe\"."},
        {{"run", walker, "-n1", "--set=gravy=1"}, "There is no setting \"gravy\". Did you mean Gravity?"},
        {{"run", walker, "-n1", "--set=Gravity=heavy"}, "--set Gravity takes a number, not \"heavy\"."},
        {{"run", walker, "-n1", "--set=Gravity=1e39"}, "Gravity cannot be 1E+39."},
        {{"run", walker, "-n1", "--set=timer period=0"}, "timer period cannot be 0."},
        {{"run", walker, "-n1", "--set=node 29.Mass=1"}, "There is no node 29: they go from 1 to 28."},
        {{"run", walker, "-n1", "--set=link 5..3.k=1"}, "\"5..3\" is no list of link, such as 3,5..9."},
        {{"run", walker, "-n1", "--set=link 3.Angel=1"},
         "Links have no number \"Angel\". Did you mean Angle?"},
        {{"run", walker, "-n1", "--every=2"}, "--every is of use with --table only."},
        {{"run", walker, "-n1", "--table=-", "--out=-"},
         "The standard output cannot take both model and table."},
    };
    for (const auto& [words, text] : cases) {
        const Said said = zentrikCli(words);
        const std::string name = words.empty() || words[0] == "rum" ? "zentrik-cli" : "zentrik-cli run";
        EXPECT_EQ(said.error, name + ": " + text + "\nTry " + name + " --help.\n");
        EXPECT_EQ(said.status, 2) << text;
        EXPECT_EQ(said.out, "");
    }
    EXPECT_EQ(zentrikCli({"run", walker, "--walls=maybe", "--help"}).status, 0);
    EXPECT_TRUE(zentrikCli({"--version"}).out.starts_with("zentrik-cli "));
}

TEST_F(RunCommand, AFullDiskLeavesTheOldFilesAndIsSaid) {
    const std::string out = file("out.bot"), table = file("table.csv");
    putFile(out, "old");
    putFile(table, "old");
    for (const auto& [option, path] : {std::pair("--out", out), std::pair("--table", table)}) {
        const FailingDisk disk(DiskCall::write, 1);
        const Said said = zentrikCli({"run", sample("walker"), "-n9", option, path});
        EXPECT_EQ(said.status, 1);
        EXPECT_EQ(said.error, "zentrik-cli run: " + path + ": No space left on device.\n");
    }
    EXPECT_EQ(contentOf(out) + contentOf(table), "oldold");
    EXPECT_EQ(entriesIn(folder_.path), 2U);
    EXPECT_EQ(zentrikCli({"run", sample("walker"), "-n9", "-o", file("no/such.bot")}).status, 1);
    // The real program, whose standard output is as full.
    const std::string command =
        ZENTRIK_CLI " run '" + sample("walker") + "' -n 9 >/dev/full 2>'" + file("said") + "'";
    EXPECT_EQ(WEXITSTATUS(std::system(command.c_str())), 1);
    EXPECT_EQ(contentOf(file("said")), "zentrik-cli run: The standard output could not be written.\n");
}

}  // namespace
}  // namespace zentrik
