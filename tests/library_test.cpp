#include "project/library.h"

#include "model/addresses.h"
#include "model/store.h"
#include "project/writer.h"
#include "rig.h"
#include "scenes/scenes.h"
#include "temporary_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace zentrik {

namespace {

namespace fs = std::filesystem;

struct Library : testing::Test {
    Library() { ed.programFolder = folder.path.string(); }

    fs::path zoo() const { return folder.path / "zoo"; }
    fs::path file(const std::string& name) const { return zoo() / (name + ".bot"); }
    void put(const std::string& name, const std::string& bytes) {
        fs::create_directory(zoo());
        putFile(file(name), bytes);
    }
    // A project file with that many nodes.
    static std::string project(int nodes, const std::string& title = "") {
        Editor other;
        other.ProjectTitle = title;
        for (int i = 0; i < nodes; ++i) scenes::addNode(other, 10 * i, 0);
        return projectBytes(other);
    }

    TemporaryFolder folder;
    Editor ed;
    ScriptedHost host;
};

TEST_F(Library, ListsProjectsOnlySortedWithoutRegardToCase) {
    LoadListOfFileNames(ed, host, true);
    EXPECT_EQ(ed.savedText, "no file found");
    for (const char* name : {"b", "Zoo", "a", "B", "two words", "ä"}) put(name, project(1));
    putFile(zoo() / "readme.txt", "");
    putFile(zoo() / "b.bot.Xy12Ab", "left by a killed save");
    putFile(zoo() / ".bot", "");
    fs::create_directory(file("folder"));
    LoadListOfFileNames(ed, host, false);
    EXPECT_EQ(ed.savedNames, (std::vector<std::string>{"a", "B", "b", "two words", "Zoo", "ä"}));
    EXPECT_EQ(lastNode(ed), 0) << "nothing was to be loaded";
    EXPECT_EQ(host.transcript, "");
}

TEST_F(Library, SelectsResumeAtTheStartOrElseTheFirst) {
    put("b", project(2));
    put("Resume", project(4));
    LoadListOfFileNames(ed, host, true);
    EXPECT_EQ(ed.savedText, "b");
    EXPECT_EQ(lastNode(ed), 2);
    put("resume", project(3, "last"));
    LoadListOfFileNames(ed, host, true);
    EXPECT_EQ(ed.savedText, "resume");
    EXPECT_EQ(ed.ProjectTitle, "last");
    EXPECT_EQ(lastNode(ed), 3);
    EXPECT_EQ(ed.panels[0], "Nodes: 3");
    EXPECT_EQ(host.transcript, "");
}

TEST_F(Library, ChoosingClearsTheModelEvenWhenTheFileIsRejected) {
    put("a", "something else");
    LoadListOfFileNames(ed, host, false);
    scenes::addLattice(ed, 2, 2, 100, 0, 0);
    ed.SelectedNode = 1;
    ed.ProjectTitle = "kept";
    lstSaved_Click(ed, host, 0);
    EXPECT_EQ(host.transcript, "message: Input file not recognized!|Zentrik\n");
    EXPECT_EQ(lastNode(ed) + lastLink(ed), 0);
    EXPECT_EQ(ed.SelectedNode, none);
    EXPECT_EQ(ed.ProjectTitle, "kept");
    for (const std::int32_t entry : {-1, 5, -7}) lstSaved_Click(ed, host, entry);
    EXPECT_EQ(ed.savedText, "a");
}

TEST_F(Library, AFileOfAnotherKindLeavesTheModelUntouched) {
    put("foreign", "something else");
    put("cut", "Zentrik\r\n");
    scenes::addLattice(ed, 2, 2, 100, 0, 0);
    ed.ProjectTitle = "kept";
    const std::string before = projectBytes(ed);
    for (const char* name : {"foreign", "cut", "missing"}) OpenFile(ed, host, name);
    EXPECT_EQ(projectBytes(ed), before);
    EXPECT_EQ(host.transcript,
              "message: Input file not recognized!|Zentrik\n"
              "message: zoo/cut.bot, line 2: the file ends before the project title.|Zentrik\n"
              "message: zoo/missing.bot could not be read.\nThere is no such file.|Zentrik\n");
}

TEST_F(Library, AMalformedLineIsNamedAndWhatCameBeforeIsLoaded) {
    put("a", project(3) + "4 : True : left\r\n");
    OpenFile(ed, host, "a");
    EXPECT_EQ(lastNode(ed), 3);
    EXPECT_EQ(host.transcript,
              "message: zoo/a.bot, line 12: field 3 (X) is not a whole number: left\n"
              "The lines before it were loaded.|Zentrik\n");
}

TEST_F(Library, LoadsSettingsSpritesAndWindowSize) {
    struct Case {
        bool mark;
        std::int32_t width, height;  // of the scene
        const char* transcript;
    };
    const Case cases[] = {{true, 9599, 5999, "resize: 9700|8000\n"},
                          {true, 9599, 6000, "resize: 9700|-1\n"},
                          {true, 9600, 5999, "resize: -1|8000\n"},
                          {true, 20000, 20000, ""},
                          {false, 0, 0, ""}};
    Editor saved;
    saved.sceneWidth = 9600, saved.sceneHeight = 6000;
    saved.AnimationTime = 2.5F, saved.Friction = 0.75F, saved.Timer1.interval = 65535;
    scenes::addNode(saved, 1, 1);
    scenes::addNode(saved, 1, 1);
    saved.Nodes[1].Sprite = "wheel.png";
    saved.Nodes[2].Sprite = "Wheel.png";
    put("a", projectBytes(saved));
    ed.spriteNames = {noSprite, "arm.png", "wheel.png"};
    for (const Case& c : cases) {
        host.transcript.clear();
        ed.marks.mnuAutoWindowSize = c.mark;
        ed.sceneWidth = c.width, ed.sceneHeight = c.height;
        OpenFile(ed, host, "a");
        EXPECT_EQ(host.transcript, c.transcript);
        EXPECT_EQ(ed.AnimationTime, 2.5F);
        EXPECT_EQ(ed.Friction, 0.75F);
        EXPECT_EQ(ed.Timer1.interval, 65535);
        EXPECT_EQ(ed.Nodes.at(1).SpriteIndex, 2);
        EXPECT_EQ(ed.Nodes.at(2).SpriteIndex, 0);
    }
    for (const std::int32_t period : {0, -5, 65536}) {
        saved.Timer1.interval = period;
        put("a", projectBytes(saved));
        OpenFile(ed, host, "a");
        EXPECT_EQ(ed.Timer1.interval, 65535) << "a period no timer takes is refused";
    }
    put("title only", "Zentrik\r\nTitle\r\n");
    OpenFile(ed, host, "title only");
    EXPECT_EQ(ed.Friction, 0.75F);
    EXPECT_EQ(lastNode(ed), 0);
}

TEST_F(Library, SavingListsANewNameOnce) {
    ed.savedText = " new ";
    saveProject(ed, host);
    saveProject(ed, host);
    EXPECT_EQ(ed.savedNames, std::vector<std::string>{" new "});
    scenes::addNode(ed, 1, 1);
    lstSaved_Enter(ed, host);
    EXPECT_EQ(ed.savedText, " new ");
    EXPECT_EQ(ed.savedNames, (std::vector<std::string>{" new ", "new"}));
    EXPECT_EQ(contentOf(file("new")), projectBytes(ed));
    EXPECT_EQ(host.transcript, "");
}

TEST_F(Library, RefusesNamesThatAreNoProjects) {
    scenes::addNode(ed, 1, 1);
    const std::string before = projectBytes(ed);
    for (const std::string& name :
         {std::string(), std::string("  "), std::string("no file found"), std::string("../x"),
          std::string("a/b"), std::string("a\\b"), std::string(".."), std::string("."), std::string("CON"),
          std::string("nul.txt"), std::string("Com1"), std::string("LPT9 .x"), std::string("a\nb"),
          std::string("a\0b", 3), std::string(201, 'a')}) {
        ed.savedText = name;
        for (const auto command : {saveProject, reloadProject}) {
            host.transcript.clear();
            command(ed, host);
            EXPECT_TRUE(host.transcript.starts_with("message: ")) << name;
        }
        EXPECT_EQ(projectBytes(ed), before) << name;
    }
    EXPECT_EQ(entriesIn(folder.path), 0u);
    host.transcript.clear();
    for (const char* name : {"console", "COM", "a..b", "a : b", "nulls"}) SaveFile(ed, host, name);
    SaveFile(ed, host, std::string(200, 'a'));
    EXPECT_EQ(host.transcript, "");
    EXPECT_EQ(entriesIn(zoo()), 6u);
}

TEST_F(Library, AFailedSaveSaysSo) {
    putFile(zoo(), "a file where the folder should be");
    SaveFile(ed, host, "a");
    EXPECT_TRUE(host.transcript.starts_with("message: zoo/a.bot could not be saved.\n")) << host.transcript;
    EXPECT_TRUE(ed.savedNames.empty());
}

TEST_F(Library, ReloadingShowsTheFileAndItsClock) {
    Editor saved;
    saved.AnimationTime = 1.25F;
    scenes::addNode(saved, 1, 1);
    put("a", projectBytes(saved));
    scenes::addLattice(ed, 2, 2, 100, 0, 0);
    ed.SelectedLink = 1;
    ed.savedText = "missing";
    reloadProject(ed, host);
    EXPECT_EQ(lastNode(ed), 4) << "a mistyped name costs nothing";
    ed.savedText = "a";
    reloadProject(ed, host);
    EXPECT_EQ(ed.panels[0] + "|" + ed.panels[1] + "|" + ed.panels[3], "Nodes: 1|Links: 0|Time:  1.250");
    EXPECT_EQ(ed.SelectedLink, none);
}

// Garbage without end, and places from which no bytes come, are refused at once.
TEST_F(Library, NeverWaitsForAStrangeFile) {
    put("garbage", "garbage");
    fs::resize_file(file("garbage"), 1ULL << 40);
    put("large", "Zentrik\r\n");
    fs::resize_file(file("large"), 1ULL << 40);
    fs::create_directory(file("folder"));
    ASSERT_EQ(mkfifo(file("pipe").c_str(), 0600), 0);
    for (const char* name : {"garbage", "large", "folder", "pipe"}) OpenFile(ed, host, name);
    EXPECT_EQ(host.transcript,
              "message: Input file not recognized!|Zentrik\n"
              "message: zoo/large.bot could not be read.\nIt is too large.|Zentrik\n"
              "message: zoo/folder.bot could not be read.\nIt is not an ordinary file.|Zentrik\n"
              "message: zoo/pipe.bot could not be read.\nIt is not an ordinary file.|Zentrik\n");
}

TEST_F(Library, AsksForTheTitle) {
    ed.ProjectTitle = "old";
    host.answers = {"new"};
    mnuSetTitle_Click(ed, host);
    EXPECT_EQ(ed.ProjectTitle, "new");
    mnuSetTitle_Click(ed, host);
    EXPECT_EQ(ed.ProjectTitle, "") << "cancelling sets an empty title";
    EXPECT_EQ(host.transcript, "input: Enter project title.|old|old\ninput: Enter project title.|new|new\n");
}

TEST_F(Library, MailsTheProject) {
    const std::string copied = "clipboard: " + projectBytes(ed) + "\n";
    const std::string opened =
        "open: mailto:" + std::string(makerMail) +
        "?subject=Zentrik&body=Comments.%20%20Zentrik%20put%20the%20current%20project%20on%20"
        "the%20clipboard.%20It%20is%20ready%20to%20paste%20into%20this%20message%21\n";
    const std::string failed = "message: Error sending email!|Send Email to Author\n";
    mnuEmail_Click(ed, host);
    EXPECT_EQ(host.transcript, copied + opened);
    EXPECT_EQ(ed.savedNames, std::vector<std::string>{"email"});
    host.transcript.clear();
    host.desktopWorks = false;
    mnuEmail_Click(ed, host);
    EXPECT_EQ(host.transcript, copied + failed);
    host.transcript.clear();
    fs::remove_all(zoo());
    putFile(zoo(), "");
    mnuEmail_Click(ed, host);
    EXPECT_EQ(host.transcript, failed);
}

}  // namespace

}  // namespace zentrik
