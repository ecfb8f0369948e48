// Many runs of one model: sweep, merge and improve.

#include "basics/numbers.h"
#include "cli_rig.h"
#include "failing_disk.h"

#include <QProcess>
#include <QtTest/QTest>
#include <algorithm>
#include <cmath>
#include <csignal>

namespace zentrik {
namespace {

using Words = std::vector<std::string>;

Words operator+(Words words, const Words& more) {
    words.insert(words.end(), more.begin(), more.end());
    return words;
}

std::vector<std::string> cellsOf(const std::string& line) {
    std::vector<std::string> cells;
    std::istringstream in(line + ",");
    for (std::string cell; std::getline(in, cell, ',');) cells.push_back(cell);
    return cells;
}

class SweepCommand : public CommandLine {
protected:
    const Words sweep_{"sweep",
                       sample("7 a walker"),
                       "--vary=deltaangle=2:3:0.25",
                       "--vary",
                       "link 8..11.Force=0.1:0.2:0.1",
                       "--measure=x,height",
                       "--measure",
                       "settled",
                       "--time=10"};
};

TEST_F(SweepCommand, GivesTheSameTableWhateverTheJobs) {
    const Said one = zentrikCli(sweep_ + Words{"--jobs=1"});
    ASSERT_EQ(one.status, 0) << one.error;
    const std::vector<std::string> lines = linesOf(one.out);
    ASSERT_EQ(lines.size(), 11U);
    EXPECT_EQ(lines[0],
              "run of 10,deltaangle,link 8..11.Force,x (twips),height (twips),settled (time units),stopped");
    EXPECT_TRUE(lines[1].starts_with("1,2,0.1,")) << lines[1];
    EXPECT_TRUE(lines[2].starts_with("2,2,0.2,")) << lines[2];
    EXPECT_TRUE(lines[3].starts_with("3,2.25,0.1,")) << lines[3];
    EXPECT_TRUE(lines[10].starts_with("10,3,0.2,")) << lines[10];
    for (const char* jobs : {"--jobs=2", "-j7"}) EXPECT_EQ(zentrikCli(sweep_ + Words{jobs}).out, one.out);

    const Said run =
        zentrikCli({"run", sample("7 a walker"), "--set=DeltaAngle=2.25", "--set=link 8..11.Force=0.1",
                    "-t10", "--table=-", "--every=1000", "--nodes=none"});
    EXPECT_EQ(cellsOf(linesOf(run.out).back())[2], cellsOf(lines[3])[3]) << "the centre's x";
}

TEST_F(SweepCommand, ItsShardsMergeToTheWhole) {
    const Said whole = zentrikCli(sweep_);
    const Words parts{file("1"), file("2"), file("3")};
    // One that is killed leaves nothing behind, or all of it.
    QStringList words;
    for (const std::string& word : sweep_ + Words{"--shard=2/3", "--out", parts[1]})
        words.append(QString::fromStdString(word));
    QProcess killed;
    killed.start(ZENTRIK_CLI, words);
    ASSERT_TRUE(killed.waitForStarted(30000));
    killed.kill();
    ASSERT_TRUE(killed.waitForFinished(30000));
    const std::string left = contentOf(parts[1]);
    for (std::size_t m = 0; m < 3; ++m) {
        const Said said =
            zentrikCli(sweep_ + Words{"--shard=" + std::to_string(m + 1) + "/3", "--out", parts[m]});
        EXPECT_EQ(said.status, 0) << said.error;
    }
    EXPECT_TRUE(left.empty() || left == contentOf(parts[1]));
    const std::string table = file("table");
    ASSERT_EQ(zentrikCli({"merge", parts[2], parts[0], parts[1], parts[0], "-o", table}).status, 0);
    EXPECT_EQ(contentOf(table), whole.out);

    const std::string name = "zentrik-cli merge: ";
    EXPECT_EQ(zentrikCli({"merge", parts[0], parts[2]}).error,
              name + "Of 10 runs these are missing: 2, 5, 8.\n");
    EXPECT_EQ(zentrikCli({"merge", parts[0], sample("walker")}).status, 1);
    EXPECT_EQ(zentrikCli({"merge", "-"}, whole.out.substr(0, whole.out.size() - 3)).error,
              name + "standard input:1: It is no whole table of a sweep.\n");
    EXPECT_EQ(zentrikCli({"merge", parts[0], "-"}, "run of 11,x\n").error,
              name + "standard input:1: It is a part of another sweep than the first.\n");
    std::string other = whole.out;
    other.replace(other.find("\n10,3,") + 4, 1, "4");
    EXPECT_EQ(zentrikCli({"merge", parts[0], "-"}, other).error,
              name + "standard input: Run 10 differs from another part's.\n");
}

TEST_F(SweepCommand, WhatCannotGoOnIsInTheTable) {
    const Said said =
        zentrikCli({"sweep", sample("walker"), "--vary=node 1.Mass=0:1:1", "--measure=steps", "-n9"});
    const std::vector<std::string> lines = linesOf(said.out);
    ASSERT_EQ(lines.size(), 3U) << said.error;
    EXPECT_EQ(lines[1], "1,0,0,Node 1 has a mass of 0: animation stopped!");
    EXPECT_EQ(lines[2], "2,1,9,");
}

TEST(Experiments, WrongOptionsAreSaid) {
    const std::string walker = sample("walker");
    using Case = std::pair<Words, std::string>;
    const Words sweep{"sweep", walker, "-n9", "--measure=x"},
        improve{"improve", walker, "-n9", "--measure=x"};
    const Words angle{"--vary=link 42.Angle=0:9"};
    const std::vector<Case> cases{
        {sweep, "--vary must say what varies."},
        {{"sweep", walker, "-n9", "--vary=Gravity=0:1:1"}, "--measure must say what to measure."},
        {{"sweep", walker, "--measure=x", "--vary=Gravity=0:1:1"},
         "Either --steps or --time must say how far to run."},
        {sweep + Words{"--vary=Gravty=0:1:1"}, "There is no setting \"Gravty\". Did you mean Gravity?"},
        {sweep + Words{"--vary=Gravity"}, "--vary takes NAME=FROM:TO or NAME=FROM:TO:STEP, not \"Gravity\"."},
        {sweep + Words{"--vary=Gravity=0:x:1"}, "\"Gravity=0:x:1\" has no range such as 0:10 or 0:10:0.5."},
        {sweep + Words{"--vary=Gravity=1:0:1"},
         "\"Gravity=1:0:1\" must go upwards, in at most 10000000 steps."},
        {sweep + Words{"--vary=Gravity=0:1:1e-9"},
         "\"Gravity=0:1:1e-9\" must go upwards, in at most 10000000 steps."},
        {sweep + Words{"--vary=Gravity=0:1:1e-4", "--vary=Friction=0:1:1e-4"},
         "These would be more than 10000000 runs."},
        {sweep + Words{"--vary=Gravity=0:1"}, "The range of Gravity needs a step, as in 0:10:0.5."},
        {sweep + Words{"--vary=timer period=0:9:1"}, "timer period cannot be 0."},
        {sweep + Words{"--vary=Gravity=0:1:1", "--shard=3/2"},
         "--shard takes I/N with I from 1 to N, not \"3/2\"."},
        {sweep + Words{"--vary=Gravity=0:1:1", "--jobs=0"},
         "--jobs takes a whole number from 1 on, not \"0\"."},
        {sweep + Words{"--vary=Gravity=0:1:1", "--measure=hight"},
         "Nothing called \"hight\" can be measured. Did you mean height?"},
        {improve + angle, "--out must name a file for the best."},
        {improve + angle + Words{"-obest", "--measure=y"}, "Only one measure can be improved."},
        {improve + Words{"-obest", "--vary=Gravity=0:9:1"},
         "The range of Gravity must be FROM:TO with room between."},
    };
    for (const auto& [words, text] : cases) {
        const Said said = zentrikCli(words);
        const std::string name = "zentrik-cli " + words[0];
        EXPECT_EQ(said.error, name + ": " + text + "\nTry " + name + " --help.\n");
        EXPECT_EQ(said.status, 2) << text;
    }
}

class ImproveCommand : public CommandLine {
protected:
    Words improve(const std::string& out, const std::string& seed = "1") const {
        return {"improve",
                sample("7 a walker"),
                "--vary=DeltaAngle=1:6",
                "--vary",
                "link 8..11.Angle=0:360",
                "--vary=link 12..15.Force=0.05:0.2",
                "--time=20",
                "--measure=distance",
                "--seed=" + seed,
                "--walls=off",
                "--out",
                file(out)};
    }
    // What a project file does, measured anew.
    std::string distanceOf(const std::string& out) const {
        const Said said = zentrikCli(
            {"sweep", file(out), "--vary=Speed=10:10:1", "--time=20", "--measure=distance", "--walls=off"});
        const std::vector<std::string> lines = linesOf(said.out);
        return lines.size() < 2 ? said.error : cellsOf(lines[1])[2];
    }
};

TEST_F(ImproveCommand, WhatCannotRunEndsItFromAnyThread) {
    const Said said = zentrikCli({"improve", sample("walker"), "--vary=TimeInterval=-1:20", "--time=3",
                                  "--measure=x", "--jobs=3", "--out", file("best.bot")});
    EXPECT_EQ(said.status, 2);
    EXPECT_NE(said.error.find("--time 3 does not end with a TimeInterval of -0."), std::string::npos)
        << said.error;
}

TEST_F(ImproveCommand, FindsTheSameBetterOneEveryTime) {
    const Said one = zentrikCli(improve("one.bot") + Words{"--runs=120", "--jobs=1"});
    const Said two = zentrikCli(improve("two.bot") + Words{"--runs=120", "--jobs=3"});
    const Said other = zentrikCli(improve("other.bot", "2") + Words{"--runs=120"});
    ASSERT_EQ(one.status, 0) << one.error;
    EXPECT_EQ(one.out, two.out);
    EXPECT_EQ(contentOf(file("one.bot")), contentOf(file("two.bot")));
    EXPECT_NE(contentOf(file("one.bot")), contentOf(file("other.bot")));
    const std::vector<std::string> lines = linesOf(one.out);
    ASSERT_EQ(lines.size(), 6U) << one.out;
    putFile(file("first.bot"), contentOf(sample("7 a walker")));
    EXPECT_EQ(lines[0], "distance at first: " + distanceOf("first.bot") + " twips");
    EXPECT_EQ(lines[1], "distance at best: " + distanceOf("one.bot") + " twips");
    EXPECT_GT(std::stod(distanceOf("one.bot")), 1.2 * std::stod(distanceOf("first.bot")));
    EXPECT_EQ(lines[2], "runs: 120");
    EXPECT_TRUE(lines[4].starts_with("link 8..11.Angle=")) << lines[4];
    const Said least = zentrikCli(improve("least.bot") + Words{"--runs=60", "--least"});
    EXPECT_LT(std::stod(distanceOf("least.bot")), std::stod(distanceOf("first.bot"))) << least.error;
}

// The walker that the manual shows, by the manual's figures.
TEST_F(ImproveCommand, TheShippedExampleWalksThatFar) {
    const auto distance = [](const std::string& path) {
        const Said said = zentrikCli(
            {"sweep", path, "--vary=Speed=10:10:1", "--time=30", "--measure=distance", "--walls=off"});
        return said.status == 0 ? std::lround(leadingNumber(cellsOf(linesOf(said.out)[1])[2])) : 0;
    };
    EXPECT_EQ(distance(sample("walker")), 6842);
    EXPECT_EQ(distance(ZENTRIK_SOURCE_DIR "/docs/examples/better_walker.bot"), 17602);
}

TEST_F(ImproveCommand, AnInterruptEndsItAndKeepsTheBest) {
    QStringList words;
    for (const std::string& word : improve("best.bot") + Words{"--runs=100000000"})
        words.append(QString::fromStdString(word));
    QProcess process;
    process.start(ZENTRIK_CLI, words);
    ASSERT_TRUE(process.waitForStarted(30000));
    const bool found = QTest::qWaitFor([&] { return !contentOf(file("best.bot")).empty(); }, 60000);
    ::kill(static_cast<pid_t>(process.processId()), SIGINT);
    ASSERT_TRUE(process.waitForFinished(60000));
    ASSERT_TRUE(found);
    EXPECT_EQ(process.exitCode(), 0);
    const std::vector<std::string> lines = linesOf(process.readAllStandardOutput().toStdString());
    ASSERT_EQ(lines.size(), 6U);
    EXPECT_EQ(lines[1], "distance at best: " + distanceOf("best.bot") + " twips");
    EXPECT_TRUE(lines[2].ends_with(", then interrupted")) << lines[2];
    EXPECT_EQ(process.readAllStandardError().toStdString(), "") << "nobody watches";
}

// What a full disk, a kill or Ctrl+C leave is a project and the worths of the runs that were made.
TEST_F(ImproveCommand, AFullDiskKeepsTheBestBeforeAndCanBeGoneOnFrom) {
    const Words words = improve("best.bot") + Words{"--runs=60", "--jobs=1"};
    const std::string whole = zentrikCli(words).out, best = contentOf(file("best.bot"));
    std::filesystem::remove(file("best.bot"));
    {
        const FailingDisk disk(DiskCall::write, 3);  // the head of the runs, a first best, and another
        const Said said = zentrikCli(words);
        EXPECT_EQ(said.status, 1);
        EXPECT_EQ(said.error, "zentrik-cli improve: " + file("best.bot") + ": No space left on device.\n");
    }
    EXPECT_NE(contentOf(file("best.bot")), "");
    EXPECT_NE(contentOf(file("best.bot")), best);
    const std::string runs = contentOf(file("best.bot.runs"));
    const auto goOn = [&](const std::string& from, const Words& more = {}) {
        putFile(file("best.bot.runs"), from);
        return zentrikCli(words + Words{"--continue"} + more);
    };
    EXPECT_EQ(zentrikCli(words).error,
              "zentrik-cli improve: " + file("best.bot.runs") +
                  " is of a search that was ended: go on with --continue, or remove it.\n");
    using Case = std::tuple<std::string, Words, std::string>;
    const std::string next = std::to_string(linesOf(runs).size() + 1);
    for (const auto& [from, more, text] :
         {Case{"notes\n", {}, ": These are no runs of a search."},
          Case{runs, {"--least"}, ": These are the runs of another project, or of other options."},
          Case{runs + "7 x\n", {}, ":" + next + ": This is no run."}}) {
        const Said said = goOn(from, more);
        EXPECT_EQ(said.error, "zentrik-cli improve: " + file("best.bot.runs") + text + "\n");
        EXPECT_EQ(contentOf(file("best.bot.runs")), from);
    }
    EXPECT_EQ(goOn(runs + "99 46").out, whole) << "of a line that was cut off nothing is believed";
    EXPECT_EQ(contentOf(file("best.bot")), best);
    EXPECT_EQ(entriesIn(folder_.path), 1U);
}

}  // namespace
}  // namespace zentrik
