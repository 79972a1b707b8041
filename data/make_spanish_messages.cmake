# cmake -DSQLITE3=... -DTABLE=Mensajes.csv -DSOURCE=... -P make_spanish_messages.cmake
# Writes the Spanish rows of the table of messages as a source, for a program whose language
# database can't be read.

cmake_minimum_required(VERSION 3.25)

set(statements "${SOURCE}.sql")
file(WRITE "${statements}" ".import --csv \"${TABLE}\" rows
.mode list
SELECT printf('    {%d, %d, R\"~~(%s)~~\", R\"~~(%s)~~\"},', Codigo, Botones, Descripcion, Titulo)
FROM rows WHERE Idioma = 'E' ORDER BY rowid;
")
execute_process(COMMAND "${SQLITE3}" -bail -batch ":memory:" INPUT_FILE "${statements}"
  OUTPUT_VARIABLE rows RESULT_VARIABLE status ERROR_VARIABLE faults)
file(REMOVE "${statements}")
if(NOT status EQUAL 0 OR NOT faults STREQUAL "" OR rows STREQUAL "")
  message(FATAL_ERROR "The Spanish messages were not written: ${faults}")
endif()
file(WRITE "${SOURCE}" "#include \"services/spanish_messages.h\"

namespace velmora {

namespace {

constexpr SpanishMessage kMessages[] = {
${rows}};

} // namespace

std::span<const SpanishMessage> spanish_messages() {
    return kMessages;
}

} // namespace velmora
")
