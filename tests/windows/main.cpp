// Runs the window tests in one application, without a display unless the platform says otherwise.
#include "ui/program_style.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setApplicationName("Velmora");
    QApplication::setStyle(new velmora::ProgramStyle("fusion"));
    // The same pixels on every machine.
    QFont font("DejaVu Sans");
    font.setPointSize(10);
    QApplication::setFont(font);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
