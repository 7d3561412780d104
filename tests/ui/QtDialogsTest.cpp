#include "ui/QtDialogs.h"
#include "io/EventLoopHelpers.h"
#include "io/ModalGate.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
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

// Shows one box and answers it with the given button once it is on screen; reports what the
// box looked like and whether the gate was held meanwhile.
struct Shown {
    MessageResult result {};
    QString title;
    QString text;
    QMessageBox::Icon icon {};
    QMessageBox::StandardButtons buttons {};
    bool gateHeld = false;
};

Shown ShowAndAnswer(MessageButtons buttons, MessageIcon icon, QMessageBox::StandardButton answer)
{
    io::ModalGate gate;
    QtDialogs dialogs(gate);
    Shown shown;
    testing::WhenModalShown<QMessageBox>([&](QMessageBox* box) {
        shown.title = box->windowTitle();
        shown.text = box->text();
        shown.icon = box->icon();
        shown.buttons = box->standardButtons();
        shown.gateHeld = gate.IsHeld();
        box->button(answer)->click();
    });
    shown.result = dialogs.MessageBox("Are you sure to quit?", buttons, icon, "Ventrix");
    EXPECT_FALSE(gate.IsHeld()) << "the gate must be released after the box";
    return shown;
}

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
        { MessageButtons::Ok, MessageIcon::Exclamation, QMessageBox::Ok, QMessageBox::Ok,
            QMessageBox::Warning, MessageResult::Ok },
    };
    for (const auto& c : cases) {
        const Shown shown = ShowAndAnswer(c.buttons, c.icon, c.click);
        EXPECT_EQ(shown.result, c.expected);
        EXPECT_EQ(shown.buttons, c.expectedButtons);
        EXPECT_EQ(shown.icon, c.expectedIcon);
        EXPECT_EQ(shown.title.toStdString(), "Ventrix");
        EXPECT_EQ(shown.text.toStdString(), "Are you sure to quit?");
        EXPECT_TRUE(shown.gateHeld);
    }
}

TEST(QtDialogsTest, ClosingAQuestionWithEscapeAnswersNo)
{
    io::ModalGate gate;
    QtDialogs dialogs(gate);
    testing::WhenModalShown<QMessageBox>([](QMessageBox* box) { box->reject(); });
    EXPECT_EQ(dialogs.MessageBox("Clear?", MessageButtons::YesNo, MessageIcon::Question, "Ventrix"),
        MessageResult::No);
}

} // namespace
} // namespace ventrix::ui
