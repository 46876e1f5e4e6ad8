#include "support/ui_fixture.h"

#include <QListWidget>

namespace brooklet::test {
namespace {

using MainWindowTest = UiTest;

TEST_F(MainWindowTest, StartsUntitledWithTheDesignCaption) {
    startMain();
    EXPECT_EQ(main->windowTitle(), "Brooklet System Controller /  Editor ");
}

} // namespace
} // namespace brooklet::test
