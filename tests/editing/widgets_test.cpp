#include "editing/widgets.h"

#include <QLineEdit>

#include <gtest/gtest.h>

namespace brooklet {
namespace {

TEST(Widgets, IndexedNamesCarryTheIndexInParentheses) {
    EXPECT_EQ(indexedName("mnuFileItem", 14), "mnuFileItem(14)");
    EXPECT_EQ(indexedName("txtInp", 0), "txtInp(0)");
}

TEST(Widgets, NameControlSetsTheDesignNameAndTheTrimmedAccessibleName) {
    QLineEdit box;
    nameControl(&box, "txtInp(3)", "  Drainage area  ");
    EXPECT_EQ(box.objectName(), "txtInp(3)");
    EXPECT_EQ(box.accessibleName(), "Drainage area");
}

TEST(Widgets, FileBytesGoThroughUnchanged) {
    std::string bytes;
    for (int c = 1; c < 256; ++c)
        bytes += static_cast<char>(c);
    EXPECT_EQ(toBytes(fromBytes(bytes)), bytes);
}

TEST(Widgets, CopyControlStateCopiesTextAndBackground) {
    QLineEdit a1, a2, b1, b2;
    ControlArray<QLineEdit> source, target;
    source.add(1, &a1);
    source.add(2, &a2);
    target.add(1, &b1);
    target.add(2, &b2);
    a2.setText("12.5");
    setBackground(&a2, RefusedColour);
    setBackground(&b1, AcceptedColour);
    CopyControlState(source, target, 2);
    EXPECT_EQ(b2.text(), "12.5");
    EXPECT_EQ(background(&b2), RefusedColour);
    EXPECT_EQ(background(&b1), AcceptedColour);
    EXPECT_EQ(b1.text(), "");
}

} // namespace
} // namespace brooklet
