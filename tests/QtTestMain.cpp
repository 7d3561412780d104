#include <QApplication>
#include <cstdlib>
#include <gtest/gtest.h>

// Qt tests need one QApplication for the whole run. Test discovery runs this binary at
// build time, so default to the offscreen platform when no display is chosen.
int main(int argc, char** argv)
{
    if (std::getenv("QT_QPA_PLATFORM") == nullptr)
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
