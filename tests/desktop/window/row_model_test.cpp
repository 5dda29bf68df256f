#include "desktop/icons/icon_set.h"
#include "desktop/panes/row_model.h"
#include "platform/row_list.h"

#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

// Rendered, the text of a message off the air could show anything, or have the program look for pictures.
TEST(RowModelTest, AMessageIsItsOwnTipAsPlainText)
{
    RowList list;
    list.Add({"W1AW", "N0CALL", "", "", "<h1>5 < 6</h1>", ""}, true);
    const IconSet icons;
    const RowModel model(list, icons, {"From", "To", "Via", "Date", "Text", "Number"});
    const QModelIndex text = model.index(0, 4);
    EXPECT_EQ(text.data().toString(), QStringLiteral("<h1>5 < 6</h1>"));
    EXPECT_EQ(text.data(Qt::ToolTipRole).toString(), QStringLiteral("<span>&lt;h1&gt;5 &lt; 6&lt;/h1&gt;</span>"));
}

} // namespace
} // namespace ruvenmark
