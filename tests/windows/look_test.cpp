// What the windows look like.
#include "windows/windows_test.h"

#include <QWidget>

namespace velmora::test {

using LookTest = WindowsTest;

TEST_F(LookTest, EveryWindowCanBePictured) {
    start_program();
    for (const char* name : {"Velmora", "wininfo", "winoptions"}) {
        show(name);
        ASSERT_NE(window(name), nullptr) << name;
        picture(*window(name), name);
    }
}

} // namespace velmora::test
