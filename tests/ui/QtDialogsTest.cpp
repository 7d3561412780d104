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

TEST(QtDialogsTest, FiltersAndStartPathsBecomeQtOnes)
{
    EXPECT_EQ(QtDialogs::ToQtFilter("Graph Files|*.gph|All Files|*.*").toStdString(),
        "Graph Files (*.gph);;All Files (*.*)");
    platform::FileDialogRequest request;
    request.initialDirectory = "/data";
    request.fileName = "run.gph";
    EXPECT_EQ(QtDialogs::StartPath(request).toStdString(), "/data/run.gph");
    request.fileName = "/elsewhere/run.gph";
    EXPECT_EQ(QtDialogs::StartPath(request).toStdString(), "/elsewhere/run.gph");
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
        // A question has Yes and No; its hidden Cancel takes Escape and closing, which answer neither.
        { MessageButtons::YesNo, MessageIcon::Question, QMessageBox::Yes,
            QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Question,
            MessageResult::Yes },
        { MessageButtons::YesNo, MessageIcon::Question, QMessageBox::No,
            QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Question,
            MessageResult::No },
        { MessageButtons::YesNo, MessageIcon::Question, QMessageBox::NoButton,
            QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Question,
            MessageResult::Dismissed },
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
