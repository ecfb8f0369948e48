#include "cli/commands/commands.h"
#include "export/picture.h"
#include "measure/run_measures.h"
#include "ui/command_toolbar.h"
#include "ui/keys.h"
#include "ui/menus.h"
#include "ui/project_menu.h"
#include "ui/property_toolbar.h"
#include "window_rig.h"

#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTreeWidget>
#include <set>
#include <string>

namespace zentrik {
namespace {

using ManualWindow = Window;

// Where the picture ends that goes farthest to the right, as seen. Words may go farther: a line of bold
// letters may be laid out wider than its room.
int pictureEnd(const QTextBrowser& text) {
    int end = 0;
    const QTextDocument& document = *text.document();
    QTextCursor cursor(document.begin());
    for (int at = 0; at < document.characterCount(); ++at)
        if (document.characterAt(at) == QChar::ObjectReplacementCharacter) {
            cursor.setPosition(at + 1);
            end = std::max(end, text.cursorRect(cursor).left());
        }
    return end;
}

TEST_F(ManualWindow, OpensAndFindsItsWay) {
    QTest::keyClick(window_.get(), Qt::Key_F1);
    QWidget* manual = find("Manual");
    ASSERT_TRUE(manual->isVisible());
    EXPECT_EQ(manual->windowTitle(), "Zentrik - Manual");
    auto* text = manual->findChild<QTextBrowser*>();
    const auto shown = [&](const char* picture) {
        const QVariant drawn = text->document()->resource(QTextDocument::ImageResource, QUrl(picture));
        return drawn.value<QPixmap>().toImage();
    };
    // No larger window than the text has room for it; then the picture is as it was taken.
    const QImage taken(":/docs/pictures/window.png");
    for (const int width : {1400, 980}) {
        manual->resize(width, 700);
        EXPECT_TRUE(
            await([&] { return (shown("pictures/window.png").width() == taken.width()) == (width > 1000); }));
    }
    const QImage small = shown("pictures/window.png");
    EXPECT_EQ(small.convertedTo(QImage::Format_RGB32),
              taken.scaled(small.size(), {}, Qt::SmoothTransformation))
        << "thin lines look dashed";
    auto* contents = manual->findChild<QTreeWidget*>();
    EXPECT_GT(contents->topLevelItemCount(), 8);
    EXPECT_GT(text->width(), 2 * contents->width()) << "most of the room is for reading";

    const auto film = [&] { return shown("pictures/walker.gif"); };
    EXPECT_TRUE(await([&] { return !film().isNull(); }));
    const QImage picture = film();
    EXPECT_TRUE(await([&] { return film() != picture; })) << "the film stands still";
    EXPECT_LE(pictureEnd(*text), text->viewport()->width()) << "a picture is wider than the window";
    // Every link inside leads to its chapter.
    const QString html = text->toHtml();
    static const QRegularExpression inside("href=\"(#[^\"]*)\"");
    int links = 0;
    for (auto found = inside.globalMatch(html); found.hasNext(); ++links) {
        const QString link = found.next().captured(1);
        text->verticalScrollBar()->setValue(0);
        Q_EMIT text->anchorClicked(QUrl(link));
        EXPECT_GT(text->verticalScrollBar()->value(), 0) << link.toStdString();
    }
    EXPECT_GT(links, 4);
    auto* search = manual->findChild<QLineEdit*>();
    QTest::keyClicks(search, "Snap to Grid");
    QTest::keyClick(search, Qt::Key_Return);
    const int first = text->textCursor().position();
    EXPECT_EQ(text->textCursor().selectedText(), "Snap to Grid");
    QTest::keyClick(search, Qt::Key_Return);
    EXPECT_NE(text->textCursor().position(), first);
    ASSERT_TRUE(window_->close());
    EXPECT_TRUE(await([&] { return window_->findChild<QWidget*>("Manual") == nullptr; }));
}

// The first cells of a chapter's tables, but for those of the heads.
std::set<std::string> entriesOf(const QString& manual, const char* chapter) {
    const QString begin = QString("\n## %1\n").arg(chapter);
    const QStringList lines = manual.section(begin, 1).section("\n## ", 0, 0).split('\n');
    std::set<std::string> entries;
    for (qsizetype i = 0; i + 1 < lines.size(); ++i)
        if (lines[i].startsWith("| ") && !lines[i + 1].startsWith("|---"))
            entries.insert(lines[i].section(" | ", 0, 0).mid(2).toLower().toStdString());
    return entries;
}

// The manual's lists are those of the program, entry by entry.
TEST(Manual, ListsWhatThereIs) {
    QFile file(":/docs/manual.md");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString manual = QString::fromUtf8(file.readAll());
    const auto add = [](std::set<std::string>& entries, const QString& entry) {
        entries.insert(entry.toLower().toStdString());
    };
    std::set<std::string> keys, entries, commands{"the project list"}, properties;
    for (const KeyRow& row : keyRows()) {
        add(keys, QString(row.keys).replace(' ', ", "));
        const QString line = QString("\n| %1 | %2 |\n").arg(QString(row.keys).replace(' ', ", "), row.effect);
        EXPECT_TRUE(manual.contains(line)) << line.toStdString();
    }
    for (const MenuRow& row : menuRows()) {
        if (row.isSeparator() || row.isMenu()) continue;
        const QString entry = QString(row.caption).remove('&').simplified();
        add(entries, row.shortcut ? entry + " (" + row.shortcut + ")" : entry);
    }
    for (const CommandRow& row : commandRows())
        if (row.isButton()) add(commands, row.tip);
    for (const PropertyRow& row : propertyRows()) {
        if (!row.isButton()) continue;
        static const Tips plain;
        const QString name = row.tip != nullptr ? QString::fromStdString(plain.*row.tip) : row.fixedTip;
        add(properties, name);
        const char* owner = row.owner == Owner::node ? "node" : row.owner == Owner::link ? "link" : "world";
        EXPECT_TRUE(manual.contains("\n| " + name + " | " + owner + " | ")) << name.toStdString();
    }
    EXPECT_EQ(entriesOf(manual, "Keys"), keys);
    EXPECT_EQ(entriesOf(manual, "Menus"), entries);
    EXPECT_EQ(entriesOf(manual, "Command toolbar"), commands);
    EXPECT_EQ(entriesOf(manual, "Property toolbar"), properties);
    const auto kept = entriesOf(manual, "How work is kept and brought back");
    for (const ProjectMenuRow& row : projectMenuRows()) {
        const QString entry = QString::fromUtf8(row.caption).remove('&').toLower();
        EXPECT_TRUE(kept.contains(entry.toStdString())) << row.caption;
    }
}

// The companion program's commands and options, in the manual as in its own help.
TEST(Manual, ListsWhatTheCompanionProgramTakes) {
    QFile file(":/docs/manual.md"), page(ZENTRIK_SOURCE_DIR "/desktop/zentrik-cli.1.in");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly) && page.open(QIODevice::ReadOnly));
    const QString manual =
        QString::fromUtf8(file.readAll()).section("## Without a window", 1).section("\n## ", 0, 0);
    const QString manPage = QString::fromUtf8(page.readAll());
    QSet<QString> rows;
    for (const cli::Command* command : cli::commands()) {
        rows.insert(QString("| `%1 %2` | %3 |").arg(command->name, command->operands, command->summary));
        EXPECT_TRUE(manPage.contains(QString("\n.It Cm %1").arg(command->name))) << command->name;
        for (const auto& group : command->options)
            for (const cli::OptionRow& row : group) {
                const QString letter = row.letter ? QString("`-%1` or ").arg(row.letter) : "";
                const QString value = row.value ? QString("=%1").arg(row.value).replace('|', "\\|") : "";
                rows.insert(QString("| %1`--%2%3` | %4 |").arg(letter, row.name, value, row.text));
                EXPECT_TRUE(manPage.contains(QString("Fl -%1").arg(row.name))) << row.name;
            }
    }
    for (const auto& format : pictureFormats())
        EXPECT_TRUE(manual.contains(QString("`.%1`").arg(format.suffix)) &&
                    manPage.contains(QString(".%1 ").arg(format.suffix)))
            << format.suffix;
    for (const Measure& measure : measures())
        rows.insert(QString("| %1 | %2 |").arg(measure.name, measure.meaning));
    for (const QString& row : rows) EXPECT_TRUE(manual.contains("\n" + row + "\n")) << row.toStdString();
    EXPECT_EQ(manual.count("\n| ") - manual.count("\n| Command | What") -
                  manual.count("\n| Option | Effect |") - manual.count("\n| Measure | What"),
              rows.size())
        << "something that is gone is listed still";
}

}  // namespace
}  // namespace zentrik
