# cmake -DSQLITE3=... -DDATABASE=... -DTABLES=... -P make_database.cmake
# Writes the language database from the CSV files of TABLES: Mensajes.csv holds the messages, every
# other file the texts of the window that has its name. The new file takes the old one's place
# only when it is whole.

cmake_minimum_required(VERSION 3.25)

set(unfinished "${DATABASE}.unfinished")
set(statements "${DATABASE}.sql")

# As sqlite3's own commands take a name: between double quotes, with C escapes.
function(quoted text result)
  string(REPLACE "\\" "\\\\" text "${text}")
  string(REPLACE "\"" "\\\"" text "${text}")
  set(${result} "\"${text}\"" PARENT_SCOPE)
endfunction()

# A column of text of at most `length` characters; an empty field of the CSV file is Null.
function(text_column name length result)
  set(${result} "${name} TEXT(${length}) CHECK (length(${name}) <= ${length})" PARENT_SCOPE)
endfunction()

function(append_table name columns key)
  set(definitions)
  set(values)
  foreach(column IN LISTS columns)
    string(REGEX MATCH "^[^ ]+" field "${column}")
    if(field IN_LIST key)
      string(APPEND column " NOT NULL")
    endif()
    list(APPEND definitions "${column}")
    list(APPEND values "NULLIF(${field}, '')")
  endforeach()
  string(REPLACE ";" ",\n  " definitions "${definitions}")
  string(REPLACE ";" ", " values "${values}")
  string(REPLACE ";" ", " key "${key}")
  quoted("${TABLES}/${name}.csv" file)
  file(APPEND "${statements}" "CREATE TABLE \"${name}\" (
  ${definitions},
  CONSTRAINT PrimaryKey PRIMARY KEY (${key}));
.import --csv --schema temp ${file} csv_rows
INSERT INTO \"${name}\" SELECT ${values} FROM csv_rows ORDER BY rowid;
DROP TABLE temp.csv_rows;
")
endfunction()

text_column(Codigo 5 codigo)
text_column(Idioma 1 idioma)
text_column(Descripcion 200 message)
text_column(Titulo 100 titulo)
text_column(Control 50 control)
text_column(Descripcion 100 caption)
text_column(Desc_Tip 100 tip)
text_column(LADO 1 lado)

file(WRITE "${statements}" "CREATE TABLE TEMP_AJUSTE (
  COORD_X DOUBLE,
  COORD_Y DOUBLE,
  ORDEN INTEGER,
  POS_PERCENT DOUBLE,
  ${lado});
")
append_table(Mensajes "${codigo};${idioma};${message};Botones INTEGER;${titulo}" "Codigo;Idioma")
file(GLOB files RELATIVE "${TABLES}" "${TABLES}/*.csv")
list(REMOVE_ITEM files Mensajes.csv)
foreach(file IN LISTS files)
  string(REGEX REPLACE "\\.csv$" "" form "${file}")
  append_table("${form}" "${control};${idioma};${caption};${tip}" "Control;Idioma")
endforeach()

# A row with too few or too many fields is only told on the error channel: whatever stands there
# is a fault.
file(REMOVE "${unfinished}")
execute_process(COMMAND "${SQLITE3}" -bail -batch "${unfinished}"
  INPUT_FILE "${statements}" RESULT_VARIABLE status ERROR_VARIABLE faults)
if(NOT status EQUAL 0 OR NOT faults STREQUAL "")
  file(REMOVE "${unfinished}")
  message(FATAL_ERROR "The language database was not written (${statements}): ${faults}")
endif()
file(REMOVE "${statements}")
file(RENAME "${unfinished}" "${DATABASE}")
