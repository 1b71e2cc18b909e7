#include "platform/FormShape.h"

#include <string>

#include <gtest/gtest.h>

namespace quorvel {
namespace {

using Indexes = std::vector<std::vector<std::size_t>>;

FormRow toggleRow(const std::string& id, bool isOn = false)
{
    return {id, "Title", ToggleControl{isOn}, {}, id, true};
}

FormGroup groupOf(const std::string& title, int rows)
{
    FormGroup group{title, {}};
    for (int row = 0; row < rows; ++row) {
        group.rows.push_back(toggleRow(title + std::to_string(row)));
    }
    return group;
}

FormGroup previewGroup()
{
    return {"Preview", {{"preview", {}, PreviewControl{}, {}, "Preview", true}}};
}

Form formOf(std::vector<FormGroup> groups)
{
    Form form;
    form.groups = std::move(groups);
    return form;
}

TEST(FormShape, OtherValuesLeaveTheShapeAsItIs)
{
    const auto one = formOf({{"Group", {toggleRow("row", false)}}});
    auto other = formOf({{"Group", {toggleRow("row", true)}}});
    other.groups[0].rows[0].help = "Now on";
    EXPECT_TRUE(hasSameShape(one, other));
}

TEST(FormShape, AnotherKindOfControlIsAnotherShape)
{
    const auto one = formOf({{"Group", {toggleRow("row")}}});
    auto other = one;
    other.groups[0].rows[0].control = StepperControl{};
    EXPECT_FALSE(hasSameShape(one, other));
}

TEST(FormShape, AnotherRowOrButtonIsAnotherShape)
{
    const auto form = formOf({groupOf("Group", 2)});
    EXPECT_FALSE(hasSameShape(form, formOf({groupOf("Group", 3)})));
    auto other = form;
    other.buttons.push_back({"reset", "Reset", {}, "Reset", ButtonRole::normal, true});
    EXPECT_FALSE(hasSameShape(form, other));
}

TEST(FormShape, FewRowsStandInOneColumn)
{
    EXPECT_EQ(groupColumns(formOf({groupOf("A", 3), groupOf("B", 3)}), Columns::several), (Indexes{{0, 1}}));
}

TEST(FormShape, ManyRowsStandInTwoColumnsOfAboutOneHeight)
{
    const auto form = formOf({groupOf("A", 6), groupOf("B", 2), groupOf("C", 5)});
    EXPECT_EQ(groupColumns(form, Columns::several), (Indexes{{0}, {1, 2}}));
    EXPECT_EQ(groupColumns(form, Columns::one), (Indexes{{0, 1, 2}}));
}

TEST(FormShape, AGroupWithAPreviewStandsInNoColumn)
{
    EXPECT_TRUE(hasPreview(previewGroup()));
    EXPECT_EQ(groupColumns(formOf({groupOf("A", 2), previewGroup(), groupOf("B", 2)}), Columns::several),
              (Indexes{{0, 2}}));
}

TEST(FormShape, AnAlertAsksTheSameWhateverIsTyped)
{
    const PaneAlert alert{"Name?", {}, PaneTextField{"name", "Theme name", ""}, {}};
    auto typed = alert;
    typed.field->text = "Night";
    EXPECT_TRUE(isSameQuestion(alert, typed));
    typed.title = "Another name?";
    EXPECT_FALSE(isSameQuestion(alert, typed));
    EXPECT_FALSE(isSameQuestion(alert, PaneAlert{"Name?", {}, std::nullopt, {}}));
}

} // namespace
} // namespace quorvel
