#include "library/library.h"

#include "basics/addresses.h"
#include "desk.h"
#include "model/store.h"
#include "project/writer.h"
#include "scenes/scenes.h"
#include "temporary_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <tuple>

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

TEST_F(Library, WhatCannotBeReadIsSaidAndLeavesTheModelUntouchedUnlessChosen) {
    put("cut", "Zentrik\r\n");
    put("foreign", "something else");
    Editor other;
    other.Gravity = 7;
    scenes::addNode(other, 1, 1);
    put("malformed", projectBytes(other) + "4 : True : left\r\n");
    // Garbage without end, and places from which no bytes come, are refused at once.
    for (const char* name : {"garbage", "Zentrik"}) {
        put(name, name);
        fs::resize_file(file(name), 1ULL << 40);
    }
    fs::create_directory(file("folder"));
    ASSERT_EQ(mkfifo(file("pipe").c_str(), 0600), 0);
    scenes::addLattice(ed, 2, 2, 100, 0, 0);
    ed.ProjectTitle = "kept";
    ed.savedText = "former";
    ed.SelectedLink = 2;
    const std::string before = projectBytes(ed);
    const std::pair<const char*, std::string> cases[] = {
        {"foreign", "Input file not recognized!"},
        {"garbage", "Input file not recognized!"},
        {"cut", "zoo/cut.bot, line 2: the file ends before the project title.\nNothing was loaded."},
        {"malformed",
         "zoo/malformed.bot, line 10: field 3 (X) is not a whole number: left\nNothing was loaded."},
        {"missing", "zoo/missing.bot could not be read.\nThere is no such file."},
        {"Zentrik", "zoo/Zentrik.bot could not be read.\nIt is too large."},
        {"folder", "zoo/folder.bot could not be read.\nIt is not an ordinary file."},
        {"pipe", "zoo/pipe.bot could not be read.\nIt is not an ordinary file."}};
    const Editor untouched = ed;
    const auto open = [](Editor& e, Host& h, const std::string& name) { OpenFile(e, h, name); };
    const auto choose = [](Editor& e, Host& h, const std::string& name) {
        e.savedNames = {name};
        lstSaved_Click(e, h, 0);
    };
    const auto reload = [](Editor& e, Host& h, const std::string& name) {
        e.savedText = name;
        reloadProject(e, h);
    };
    using Way = void (*)(Editor&, Host&, const std::string&);
    for (const auto& [name, message] : cases)
        for (const Way way : {Way(open), Way(choose), Way(reload)}) {
            ed = untouched;
            host.transcript.clear();
            way(ed, host, name);
            EXPECT_EQ(host.transcript, "message: " + message + "|Zentrik\n");
            const bool isForeign = message == "Input file not recognized!";
            if (isForeign && way != Way(open)) {
                EXPECT_EQ(lastNode(ed) + lastLink(ed), 0) << name;
                EXPECT_EQ(ed.ProjectTitle + ed.savedText, "kept" + std::string(name));
                continue;
            }
            EXPECT_EQ(projectBytes(ed), before) << name;
            EXPECT_EQ(selections(ed), selections(untouched));
            if (way == Way(choose)) {
                EXPECT_EQ(ed.savedText, "former");
            }
        }
    for (const std::int32_t entry : {-1, 5, -7}) lstSaved_Click(ed, host, entry);
    EXPECT_EQ(lastNode(ed), 0);
}

TEST_F(Library, LoadsSettingsSpritesAndWindowSize) {
    Editor saved;
    saved.sceneWidth = 9600, saved.sceneHeight = 6000;
    saved.AnimationTime = 2.5F, saved.Friction = 0.75F, saved.timerPeriod = 65535;
    scenes::addNodes(saved, {{1, 1}, {1, 1}});
    saved.Nodes[1].Sprite = "wheel.png";
    saved.Nodes[2].Sprite = "Wheel.png";
    put("a", projectBytes(saved));
    ed.spriteNames = {noSprite, "arm.png", "wheel.png"};
    // Whether the mark is set, the scene's size, and what is asked of the window.
    const std::tuple<bool, std::int32_t, std::int32_t, const char*> cases[] = {
        {true, 9599, 5999, "resize: 9700|8000\n"},
        {true, 9599, 6000, "resize: 9700|-1\n"},
        {true, 9600, 5999, "resize: -1|8000\n"},
        {true, 20000, 20000, ""},
        {false, 0, 0, ""}};
    for (const auto& [mark, width, height, transcript] : cases) {
        host.transcript.clear();
        ed.marks.mnuAutoWindowSize = mark;
        ed.sceneWidth = width, ed.sceneHeight = height;
        OpenFile(ed, host, "a");
        EXPECT_EQ(host.transcript, transcript);
    }
    EXPECT_EQ(ed.AnimationTime, 2.5F);
    EXPECT_EQ(ed.Nodes.at(1).SpriteIndex * 10 + ed.Nodes.at(2).SpriteIndex, 20);
    for (const std::int32_t period : {65535, 0, -5, 65536}) {
        saved.timerPeriod = period;
        put("a", projectBytes(saved));
        OpenFile(ed, host, "a");
        EXPECT_EQ(ed.timerPeriod, 65535) << "a period no timer takes is refused";
    }
    put("title only", "Zentrik\r\nTitle\r\n");
    OpenFile(ed, host, "title only");
    EXPECT_EQ(ed.Friction, 0.75F);
    EXPECT_EQ(lastNode(ed), 0);
}

TEST_F(Library, SavingListsANewNameOnceAndSaysWhichWasUsed) {
    ed.savedText = " new ";
    saveProject(ed, host);
    EXPECT_EQ(ed.panels[4], "Project \" new \" saved, with the blanks around its name!");
    saveProject(ed, host);
    EXPECT_EQ(ed.savedNames, std::vector<std::string>{" new "});
    EXPECT_EQ(host.transcript, "");
    scenes::addNode(ed, 1, 1);
    const std::string twins =
        "message: The project was saved as \"new\".\n"
        "\" new \", which differs in blanks only, is another project.|Zentrik\n";
    for (int i = 0; i < 2; ++i) {
        lstSaved_Enter(ed, host);
        EXPECT_EQ(ed.savedText, " new ");
        EXPECT_EQ(ed.panels[4], "Project \"new\" saved, without the blanks around what was typed!");
        EXPECT_EQ(host.transcript, twins) << "said once, when the second comes to be";
    }
    EXPECT_EQ(ed.savedNames, (std::vector<std::string>{" new ", "new"}));
    EXPECT_EQ(contentOf(file("new")), projectBytes(ed));
    EXPECT_TRUE(SaveFile(ed, host, "new"));
    EXPECT_EQ(ed.panels[4], "Project new saved!");
}

TEST_F(Library, RefusesNamesThatAreNoProjects) {
    scenes::addNode(ed, 1, 1);
    const std::string before = projectBytes(ed);
    std::vector<std::string> names{"",  "  ",  "no file found", "../x", "a/b",     "a\\b", "..",
                                   ".", "CON", "nul.txt",       "Com1", "LPT9 .x", "a\nb"};
    names.insert(names.end(), {std::string("a\0b", 3), std::string(201, 'a')});
    for (const std::string& name : names) {
        ed.savedText = name;
        for (const auto command : {saveProject, reloadProject}) {
            host.transcript.clear();
            command(ed, host);
            EXPECT_TRUE(host.transcript.starts_with("message: ")) << name;
        }
        EXPECT_EQ(projectBytes(ed), before) << name;
    }
    EXPECT_EQ(entriesIn(folder.path), 0u);
    lstSaved_Enter(ed, host);
    EXPECT_EQ(ed.savedText, names.back()) << "to be mended, not typed again";
    host.transcript.clear();
    for (const char* name : {"console", "COM", "comet", "gun1", "a..b", "a : b", "nulls"})
        SaveFile(ed, host, name);
    SaveFile(ed, host, std::string(200, 'a'));
    EXPECT_EQ(host.transcript, "");
    EXPECT_EQ(entriesIn(zoo()), 8u);
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

TEST_F(Library, AsksForTheTitle) {
    ed.ProjectTitle = "old";
    host.answers = {"new"};
    choose(ed, host, "mnuSetTitle");
    EXPECT_EQ(ed.ProjectTitle, "new");
    choose(ed, host, "mnuSetTitle");
    EXPECT_EQ(ed.ProjectTitle, "") << "cancelling sets an empty title";
    EXPECT_EQ(host.transcript, "input: Enter project title.|old|old\ninput: Enter project title.|new|new\n");
}

TEST_F(Library, MailsTheProjectAndSaysWhatFailed) {
    const std::string copied = "clipboard: " + projectBytes(ed) + "\n";
    const std::string opened =
        "open: mailto:" + std::string(makerMail) +
        "?subject=Zentrik&body=Comments.%20%20Zentrik%20put%20the%20current%20project%20on%20"
        "the%20clipboard.%20It%20is%20ready%20to%20paste%20into%20this%20message%21\n";
    const auto failed = [](const char* advice) {
        return "message: Error sending email!\n" + std::string(advice) + makerMail +
               ".|Send Email to Author\n";
    };
    const char *paste = "The project is on the clipboard: paste it into a mail to ",
               *send = "Save the project and send its file from the folder zoo to ";
    choose(ed, host, "mnuEmail");
    EXPECT_EQ(host.transcript, copied + opened);
    EXPECT_EQ(ed.savedNames, std::vector<std::string>{"email"});
    host.transcript.clear();
    host.desktopWorks = false;
    choose(ed, host, "mnuEmail");
    EXPECT_EQ(host.transcript, copied + opened + failed(paste));
    host.transcript.clear();
    host.clipboardWorks = false;
    choose(ed, host, "mnuEmail");
    EXPECT_EQ(host.transcript, copied + failed(send));
    host.transcript.clear();
    fs::remove_all(zoo());
    putFile(zoo(), "");
    choose(ed, host, "mnuEmail");
    EXPECT_EQ(host.transcript, failed(send));
    host.transcript.clear();
    SaveFile(ed, host, "a");
    EXPECT_TRUE(host.transcript.starts_with("message: zoo/a.bot could not be saved.\n")) << host.transcript;
    EXPECT_EQ(ed.savedNames, std::vector<std::string>{"email"});
}

}  // namespace

}  // namespace zentrik
