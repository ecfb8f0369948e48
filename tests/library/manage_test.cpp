#include "library/manage.h"

#include "library/backups.h"
#include "library/library.h"
#include "library/zoo.h"
#include "model/store.h"
#include "project/writer.h"
#include "rig.h"
#include "scenes/scenes.h"
#include "temporary_folder.h"
#include "ui/project_menu.h"

#include <gtest/gtest.h>

namespace zentrik {

namespace {

namespace fs = std::filesystem;

struct Manage : testing::Test {
    Manage() { ed.programFolder = folder.path.string(); }

    fs::path file(const std::string& name) const { return folder.path / "zoo" / (name + ".bot"); }
    void save(const std::string& name, int nodes) {
        ed.Nodes.resize(1);
        for (int i = 0; i < nodes; ++i) scenes::addNode(ed, i, i);
        ed.ProjectTitle = "of " + std::to_string(nodes);
        ed.savedText = name;
        EXPECT_TRUE(SaveFile(ed, host, name));
    }
    // Runs an entry of the menu; gives what was asked and said.
    std::string choose(const std::string& entry) {
        host.transcript.clear();
        for (const ProjectMenuRow& row : projectMenuRows())
            if (row.name == entry) row.command(ed, host);
        return host.transcript;
    }

    TemporaryFolder folder;
    Editor ed;
    ScriptedHost host;
};

TEST_F(Manage, AnEarlierVersionBecomesTheModelAndNoFileChanges) {
    EXPECT_TRUE(choose("earlierVersions").starts_with("message: There is no earlier version of \"\"."));
    for (const int nodes : {1, 2, 3}) save("a", nodes);
    const std::string present = contentOf(file("a"));
    EXPECT_EQ(choose("earlierVersions"), "version: a|2\n");
    EXPECT_EQ(projectBytes(ed), present) << "cancelled";
    host.version = 1;
    ed.savedText = " a ";  // as Enter leaves it
    ed.Timer1.enabled = ed.buttons.start = true;
    ed.SelectedNode = 3;
    ed.nodeControls = true;
    choose("earlierVersions");
    EXPECT_EQ(ed.ProjectTitle + "|" + ed.panels[0] + "|" + ed.panels[4],
              "of 1|Nodes: 1|Earlier version of a opened");
    EXPECT_EQ(ed.SelectedNode, none);
    EXPECT_FALSE(ed.nodeControls);
    EXPECT_FALSE(ed.Timer1.enabled) << "a run would change it at once";
    EXPECT_EQ(contentOf(file("a")), present);
    EXPECT_EQ(entriesIn(folder.path / "backups"), 2U);
    putFile(formerVersions(ed.programFolder, "a")[1].path, "Zentrik\r\nt\r\nNodes\r\n1 : x\r\n");
    const std::string before = projectBytes(ed);
    EXPECT_NE(choose("earlierVersions").find("line 4: field 2 (Used)"), std::string::npos);
    EXPECT_EQ(projectBytes(ed), before);
}

TEST_F(Manage, RenamingTakesTheEarlierVersionsAlong) {
    save("a", 1);
    save("a", 2);
    save("b", 5);
    ed.savedText = "a";
    host.answers = {"b", "../c", "", "a", "CON"};
    for (const char* said : {"There is a project \"b\" already.", "A project's name cannot hold", "", "",
                             "\"CON\" is the name of a device"}) {
        const std::string asked = "input: New name of the project.|Rename|a\n";
        EXPECT_TRUE(choose("renameProject").starts_with(asked + (*said ? "message: " : "") + said)) << said;
        EXPECT_TRUE(fs::exists(file("a")));
    }
    EXPECT_EQ(parseProject(contentOf(file("b"))).project->Nodes.size(), 6U);
    host.answers = {" c "};
    choose("renameProject");
    EXPECT_EQ(ed.savedText + "|" + ed.panels[4], "c|Project a is now c");
    EXPECT_EQ(ed.savedNames, (std::vector<std::string>{"b", "c"}));
    EXPECT_EQ(formerVersions(ed.programFolder, "c").size(), 1U);
    EXPECT_EQ(formerVersions(ed.programFolder, "a").size(), 0U);
    EXPECT_FALSE(fs::exists(file("a")));
    ed.savedText = "a";
    EXPECT_EQ(choose("renameProject"), "message: There is no project \"a\".|Zentrik\n");
}

TEST_F(Manage, WhatIsDeletedCanBeBroughtBack) {
    save("a", 3);
    const std::string bytes = contentOf(file("a"));
    host.confirms = false;
    EXPECT_EQ(choose("deleteProject"), "confirm: Delete the project \"a\"?|Delete\n");
    host.confirms = true;
    putFile(folder.path / "backups", "no folder");
    EXPECT_NE(choose("deleteProject").find("trash: a.bot\nmessage: \"a\" could not be deleted.\n"),
              std::string::npos);
    EXPECT_EQ(contentOf(file("a")), bytes);
    fs::remove(folder.path / "backups");
    choose("deleteProject");
    EXPECT_FALSE(fs::exists(file("a")));
    EXPECT_EQ(ed.savedNames.size(), 0U);
    EXPECT_EQ(UsedNodes(ed), 3) << "the model stays";
    ClearAnimation(ed);
    host.version = 0;
    choose("earlierVersions");
    EXPECT_EQ(UsedNodes(ed), 3);
    save("b", 1);
    host.hasTrash = true;
    choose("deleteProject");
    EXPECT_EQ(ed.panels[4], "Project b is in the trash");
    EXPECT_EQ(formerVersions(ed.programFolder, "b").size(), 0U);
}

TEST_F(Manage, ShowsTheFolderOrSaysWhereItIs) {
    ed.programFolder = "/odd folder/ä%";
    EXPECT_EQ(choose("showFolder"), "open: file:///odd%20folder/%C3%A4%25/zoo\n");
    host.desktopWorks = false;
    EXPECT_NE(choose("showFolder").find("The projects are in /odd folder/ä%/zoo."), std::string::npos);
}

}  // namespace

}  // namespace zentrik
