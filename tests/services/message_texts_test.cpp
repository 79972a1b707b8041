#include "fakes/recording_platform.h"
#include "platform/database.h"
#include "services/messages.h"
#include "support/places.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <regex>
#include <string>
#include <utility>
#include <vector>

namespace velmora {
namespace {

// The Spanish catalogue, to the blank and the accent. 7 and 99 are free, 132 and 144 are filters.
constexpr std::pair<int, const char*> kTexts[] = {
    {4, "Estás seguro de querer salir de Velmora?"},
    {5, "Seleccione Fichero a Abrir"},
    {6, "Sólo se permiten números!"},
    {8, "El fichero :"},
    {9, "no ha sido cargado, contiene errores, o no es un formato soportado! Formato detectado:"},
    {10, "Cargado:"},
    {11, "Tipo:"},
    {12, "fichero :"},
    {13, "Creado Correctamente!"},
    {14, "El dígito de precision debe ser mayor o igual a 1!"},
    {15, "creado correctamente! Felicidades y a kortar!"},
    {16, "creado correctamente! Felicidades!, pero recuerda que debes desactivar el OSNAP para "
         "poder cargarlo correctamente en Autocad!"},
    {17, "Capturando los objetos contenidos en :"},
    {18, "Los puntos para un arco no pueden ser inferiores a 3! modifica los parámetros de "
         "captura; Puntos:"},
    {19, "Los puntos de un círculo no pueden ser inferiores a 4!  Puntos:"},
    {20, "Convirtiendo puntos a lineas!"},
    {21, "Reorganizando objetos! (1/2)"},
    {22, "El punto origen no está en la forma!, por favor selecciona una nuevo punto Origen!"},
    {23, "El formato que se va a generar, provocará la pérdida de los puntos de sincronimo, desea "
         "continuar?"},
    {24, "Se han encontrado"},
    {25,
     "lineas incoherentes en el dibujo, estas se han marcado en amarillo; procede a repararlas!"},
    {26, "Objetos Cargados!"},
    {27, "Usa ALT+TAB para pasar a Autocad y seleccionar el punto inicial de corte"},
    {28, "Selecciona el punto inicial de la linea de corte."},
    {29, "Procediendo a capturar los objetos del dibujo Autocad..."},
    {30, "Punto incorrecto!"},
    {31, "Autocad no está abierto en este momento! Abrelo y pulsa Reconectar Acad"},
    {33, "Cargando Fichero -"},
    {34, "Fichero a generar"},
    {35, "ya existe, desea sobreescribirlo?"},
    {36, "Ahora dale una descripción al fichero:"},
    {37, "No hay ninguna forma cargada!"},
    {41, "No hay ningún documento abierto, abre uno y reconecta!"},
    {42, "no tiene coordenada (0,0)! Deseas que Velmora use la coordenada más a la izquierda como "
         "punto (0,0)?"},
    {43, "Error en Dibuja la forma es demasiado grande para representarla!"},
    {45, "Un arco debe tener como mínimo 3 puntos!"},
    {46, "Un círculo debe tener como mínimo 4 puntos!"},
    {47, "Invirtiendo Sentido de Corte..."},
    {48, "Sentido de Corte Invertido!"},
    {49, "Optimizando Coordenadas..."},
    {50, "Coordenadas Optimizadas!"},
    {51, "Escalando a la Unidad..."},
    {52, "Forma Escalada!"},
    {53, "Realizando Mirror Horizontal..."},
    {54, "Mirror Horizontal Realizado!"},
    {55, "Realizando Mirror Vertical..."},
    {56, "Mirror Vertical Realizado!"},
    {57, "Aplicando Precisión ..."},
    {58, "Precisión Aplicada!"},
    {59, "Positivando Forma..."},
    {60, "Forma Positivada!"},
    {62, "contiene coordenadas superiores a"},
    {63, "Deseas que Velmora escale las coordenadas para poder cargarlo?"},
    {64, "La versión del fichero :"},
    {65, "no está soportada! Versiones soportadas R14 en adelante!"},
    {66, "debe tener más de dos lineas para sea un formato DAT aceptable!"},
    {67, "Reorganizando objetos! (2/2)"},
    {68, "SLWS - DAT Perfil estandar"},
    {69, "SLWSINC - DAT con Puntos de Sincronismo"},
    {70, "SLWMD - DAT con Puntos de Sincronismo Formato Meridol"},
    {71, "NOSLW - Formato no Estandar"},
    {72, "SCR -  Script Autocad"},
    {73, "CUT -  Archivo Coordenadas Cnc Francés"},
    {74, "DXF -  Autocad Data Exchange Format"},
    {75, "La forma no tiene puntos de sincronismo, pulsa OK para añadir el punto de origen como "
         "sincronismo, o Cancelar para poder seleccionar otro formato!"},
    {76, "No se pueden eliminar más puntos!"},
    {77, "Cuadrado"},
    {78, "Triángulo"},
    {79, "Círculo"},
    {80, "Número de puntos para el círculo a generar :"},
    {81, "El cambio de idioma será efectivo la próxima vez que ejecutes el programa Velmora!"},
    {82, "El documento cargado en Autocad no tiene ningún objeto!"},
    {83, "No se pueden eliminar tantos puntos!"},
    {84, "Archivo no encontrado"},
    {90, "Selecciona la nueva ubicación de la forma. (pulsa ESC para cancelar)"},
    {91, "El número de Puntos de Sincronismo es distinto en los dos ficheros!"},
    {92, "Desea escalar la forma a la unidad?"},
    {93, "Número de puntos hasta el siguiente punto de sincronismo:"},
    {94, "Demasiados Puntos para la forma!"},
    {95, "Nuevo Nº de puntos :"},
    {96, "PROFILI - DAT Generado con la utilidad Profili."},
    {98, "Angulo de rotación :"},
};

/// The names of services/message_codes.h with their numbers.
std::vector<std::pair<std::string, std::string>> named_messages() {
    std::ifstream header(test::source_dir() / "src/services/message_codes.h");
    const std::string text{std::istreambuf_iterator<char>(header), {}};
    const std::regex constant("constexpr int (\\w+) = (\\d+);");
    std::vector<std::pair<std::string, std::string>> found;
    for (std::sregex_iterator it(text.begin(), text.end(), constant), end; it != end; ++it)
        found.emplace_back((*it)[1], (*it)[2]);
    return found;
}

// The catalogue above ends at 98: a message beyond it could go with no test the wiser.
TEST(MessageTexts, every_message_that_has_a_name_stands_in_every_language) {
    test::RecordingPlatform machine{test::with_database};
    const auto named = named_messages();
    ASSERT_FALSE(named.empty());
    const auto rows = machine.database->open_recordset("Mensajes", Access::read_only);
    for (const auto& [name, code] : named) {
        for (const char* language : {"E", "I", "F", "P", "T"}) {
            rows->seek({code, language});
            ASSERT_FALSE(rows->no_match())
                << name << ": a row " << code << ',' << language << " in data/tables/Mensajes.csv";
            EXPECT_FALSE(text_of(rows->field("Descripcion")).empty()) << code << language;
        }
    }
}

TEST(MessageTexts, are_those_of_the_catalogue_to_the_letter) {
    test::RecordingPlatform machine{test::with_database};
    for (const auto& [code, text] : kTexts)
        EXPECT_EQ(GetMensaje(code), text) << code;
}

} // namespace
} // namespace velmora
