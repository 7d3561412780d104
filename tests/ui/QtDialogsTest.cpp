#include "ui/QtDialogs.h"
#include "io/ModalGate.h"
#include "io/TestSupport.h"

#include <QMessageBox>
#include <QPushButton>
#include <gtest/gtest.h>

namespace ventrix::ui {
namespace {

using platform::MessageButtons;
using platform::MessageIcon;
using platform::MessageResult;

TEST(QtDialogsTest, FiltersBecomeQtFilters)
{
    const struct {
        const char* filter;
        const char* expected;
    } cases[] = {
        { "*.gph|*.gph", "*.gph (*.gph)" },
        { "Graph Files|*.gph|All Files|*.*", "Graph Files (*.gph);;All Files (*.*)" },
        { "Text (*.txt)|*.txt", "Text (*.txt)" },
        { "Logs|*.txt;*.log", "Logs (*.txt *.log)" },
        { "", "" },
        { "dangling", "" },
    };
    for (const auto& c : cases)
        EXPECT_EQ(QtDialogs::ToQtFilter(c.filter).toStdString(), c.expected) << c.filter;
}

TEST(QtDialogsTest, StartPathJoinsDirectoryAndFile)
{
    const struct {
        const char* directory;
        const char* file;
        const char* expected;
    } cases[] = {
        { "/data", "run.gph", "/data/run.gph" },
        { "/data", "", "/data" },
        { "", "run.gph", "run.gph" },
        { "/data", "/elsewhere/run.gph", "/elsewhere/run.gph" },
    };
    for (const auto& c : cases) {
        platform::FileDialogRequest request;
        request.initialDirectory = c.directory;
        request.fileName = c.file;
        EXPECT_EQ(QtDialogs::StartPath(request).toStdString(), c.expected) << c.directory << " + " << c.file;
    }
}

// Each box is answered once it is on screen, by its button or (NoButton) by Escape; the box must
// look as asked, hold the gate while it is open and release it afterwards.
TEST(QtDialogsTest, MessageBoxesShowTheirButtonsAndReturnTheAnswer)
{
    const struct {
        MessageButtons buttons;
        MessageIcon icon;
        QMessageBox::StandardButton click;
        QMessageBox::StandardButtons expectedButtons;
        QMessageBox::Icon expectedIcon;
        MessageResult expected;
    } cases[] = {
        { MessageButtons::YesNo, MessageIcon::Question, QMessageBox::Yes, QMessageBox::Yes | QMessageBox::No,
            QMessageBox::Question, MessageResult::Yes },
        { MessageButtons::YesNo, MessageIcon::Question, QMessageBox::No, QMessageBox::Yes | QMessageBox::No,
            QMessageBox::Question, MessageResult::No },
        { MessageButtons::YesNo, MessageIcon::Question, QMessageBox::NoButton,
            QMessageBox::Yes | QMessageBox::No, QMessageBox::Question, MessageResult::No },
        { MessageButtons::Ok, MessageIcon::Exclamation, QMessageBox::Ok, QMessageBox::Ok,
            QMessageBox::Warning, MessageResult::Ok },
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(static_cast<int>(c.click));
        io::ModalGate gate;
        QtDialogs dialogs(gate);
        bool shown = false;
        testing::WhenModalShown<QMessageBox>([&](QMessageBox* box) {
            shown = true;
            EXPECT_EQ(box->windowTitle().toStdString(), "Ventrix");
            EXPECT_EQ(box->text().toStdString(), "Are you sure to quit?");
            EXPECT_EQ(box->icon(), c.expectedIcon);
            EXPECT_EQ(box->standardButtons(), c.expectedButtons);
            EXPECT_TRUE(gate.IsHeld());
            c.click == QMessageBox::NoButton ? box->reject() : box->button(c.click)->click();
        });
        EXPECT_EQ(dialogs.MessageBox("Are you sure to quit?", c.buttons, c.icon, "Ventrix"), c.expected);
        EXPECT_TRUE(shown);
        EXPECT_FALSE(gate.IsHeld()) << "the gate must be released after the box";
    }
}

} // namespace
} // namespace ventrix::ui
