// velmora-pictures FOLDER: pictures of every window in all languages, light and dark, at the scale
// that the process runs at. velmora-pictures --sheet FOLDER: the contact sheet of what lies there.
// velmora-pictures --guide docs/help: the pictures of the guide.
#include "pictures/contact_sheet.h"
#include "pictures/gallery.h"
#include "pictures/guide_pictures.h"
#include "ui/program_style.h"

#include <QApplication>
#include <cstdio>

int main(int argc, char** argv) {
    using namespace velmora::pictures;
    QApplication application(argc, argv);
    QApplication::setApplicationName("Velmora");
    QApplication::setStyle(new velmora::ProgramStyle("fusion"));
    QFont font("DejaVu Sans"); // the same pixels on every machine
    font.setPointSize(10);
    QApplication::setFont(font);

    const QStringList words = QApplication::arguments();
    if (words.size() == 3 && words[1] == "--sheet")
        return make_contact_sheet(words[2]) ? 0 : 1;
    const bool guide = words.size() == 3 && words[1] == "--guide";
    if (words.size() != 2 && !guide) {
        std::fputs("usage: velmora-pictures [--sheet | --guide] FOLDER\n", stderr);
        return 2;
    }
    bool well = true;
    if (guide) {
        for (const std::string_view language : kLanguages)
            well = take_guide_pictures(words[2], language) && well;
        return well ? 0 : 1;
    }
    for (const Theme theme : kThemes)
        for (const std::string_view language : kLanguages)
            well = take_pictures(words[1], language, theme) && well;
    return well ? 0 : 1;
}
