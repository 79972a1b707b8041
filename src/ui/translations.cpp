#include "ui/translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace velmora {

namespace {

QStringList tables_of(std::string_view idioma) {
    if (idioma == "I")
        return {};
    if (idioma == "F")
        return {"qtbase_fr"};
    if (idioma == "P")
        return {"qtbase_pt_PT", "qtbase_pt", "qtbase_pt_BR"};
    if (idioma == "T")
        return {"qtbase_it"};
    return {"qtbase_es"};
}

} // namespace

void install_translations(std::string_view idioma) {
    static QTranslator translator;
    QCoreApplication::removeTranslator(&translator);
    for (const QString& table : tables_of(idioma))
        if (translator.load(table, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
            QCoreApplication::installTranslator(&translator);
            return;
        }
}

} // namespace velmora
