#include <QApplication>
#include <QTemporaryDir>
#include <cstdlib>
#include <gtest/gtest.h>

// Qt tests need one QApplication for the whole run. Test discovery runs this binary at
// build time, so default to the offscreen platform when no display is chosen. The program's
// files go to a temporary directory unless a test sets its own, never to the user's data.
int main(int argc, char** argv)
{
    if (std::getenv("QT_QPA_PLATFORM") == nullptr)
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QTemporaryDir dataDir;
    if (std::getenv("VENTRIX_DATA_DIR") == nullptr && dataDir.isValid())
        setenv("VENTRIX_DATA_DIR", dataDir.path().toLocal8Bit().constData(), 1);
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
