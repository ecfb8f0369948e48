#include "history/history.h"
#include "project/columns.h"
#include "scenes/scenes.h"

#include <gtest/gtest.h>

namespace zentrik {
namespace {

// Every field a file holds must be one that undo sees; a field left out would be lost without a word.
TEST(UndoColumns, AreAllKnown) {
    Editor ed = scenes::fullScreen();
    History history;
    scenes::addNodes(ed, {{1000, 1000}, {2000, 1000}, {2000, 2000}});
    scenes::addLinks(ed, {{1, 2}, {2, 3}});
    startHistory(history, ed);
    const auto perform = [&](auto procedure) {
        beginEvent(history, ed, Event::command);
        procedure();
        endEvent(history, ed, Event::command, "Change");
    };
    const auto check = [&](const auto& columns, auto& record) {
        for (const auto& column : columns) {
            std::visit(
                [&](auto member) {
                    auto& field = record().*member;
                    using Value = std::remove_reference_t<decltype(field)>;
                    const Value before = field;
                    perform([&] {
                        if constexpr (std::is_same_v<Value, std::string>)
                            field += "?";
                        else
                            field = field == Value{} ? Value{1} : Value{};
                        ed.AnimationTime += 1;  // a step even where the field is a mere trace
                    });
                    stepBack(history, ed);
                    EXPECT_EQ(record().*member, before) << column.name;
                },
                column.member);
        }
    };
    const auto node = [&]() -> Node& { return ed.Nodes[2]; };
    const auto link = [&]() -> Link& { return ed.Links[1]; };
    check(nodeColumns, node);
    check(linkColumns, link);
    for (float Editor::*setting : {&Editor::Gravity, &Editor::Friction, &Editor::Viscosity, &Editor::LeftWind,
                                   &Editor::Bounce, &Editor::TimeInterval, &Editor::DeltaAngle}) {
        perform([&] { ed.*setting = 7; });
        stepBack(history, ed);
        EXPECT_NE(ed.*setting, 7);
    }
    perform([&] { ed.timerPeriod = 7; });
    stepBack(history, ed);
    EXPECT_EQ(ed.timerPeriod, 20);
}

}  // namespace
}  // namespace zentrik
