#include "runtime/error.h"

#include <algorithm>
#include <array>

namespace velmora {
namespace {

constexpr std::string_view languages = "EIFPT";

struct ErrorText {
    int number;
    std::array<std::string_view, 5> texts; ///< in the order of `languages`
};

constexpr auto error_texts = std::to_array<ErrorText>({
    {error::invalid_call,
     {"Llamada a procedimiento o argumento no válidos", "Invalid procedure call or argument",
      "Argument ou appel de procédure incorrect", "Argumento ou chamada de procedimento inválidos",
      "Chiamata di routine o argomento non validi"}},
    {error::overflow,
     {"Desbordamiento", "Overflow", "Dépassement de capacité", "Capacidade excedida", "Overflow"}},
    {error::out_of_memory,
     {"Memoria insuficiente", "Out of memory", "Mémoire insuffisante", "Memória insuficiente",
      "Memoria esaurita"}},
    {error::subscript,
     {"Subíndice fuera del intervalo", "Subscript out of range",
      "L'indice n'appartient pas à la sélection", "Índice fora do intervalo",
      "Indice non compreso nell'intervallo"}},
    {error::division_by_zero,
     {"División por cero", "Division by zero", "Division par zéro", "Divisão por zero",
      "Divisione per zero"}},
    {error::type_mismatch,
     {"No coinciden los tipos", "Type mismatch", "Incompatibilité de type", "Tipos incompatíveis",
      "Tipo non corrispondente"}},
    {error::bad_file_number,
     {"Nombre o número de archivo incorrecto", "Bad file name or number",
      "Nom ou numéro de fichier incorrect", "Nome ou número de ficheiro incorreto",
      "Nome o numero di file non valido"}},
    {error::file_not_found,
     {"No se ha encontrado el archivo", "File not found", "Fichier introuvable",
      "Ficheiro não encontrado", "Impossibile trovare il file"}},
    {error::bad_file_mode,
     {"Modo de archivo incorrecto", "Bad file mode", "Mode d'accès au fichier incorrect",
      "Modo de ficheiro incorreto", "Modalità di file non valida"}},
    {error::file_already_open,
     {"El archivo ya está abierto", "File already open", "Fichier déjà ouvert",
      "O ficheiro já está aberto", "File già aperto"}},
    {error::device_io,
     {"Error de E/S de dispositivo", "Device I/O error", "Erreur d'entrée/sortie de périphérique",
      "Erro de E/S do dispositivo", "Errore di I/O su dispositivo"}},
    {error::disk_full, {"Disco lleno", "Disk full", "Disque plein", "Disco cheio", "Disco pieno"}},
    {error::past_end,
     {"La entrada de datos sobrepasa el final del archivo", "Input past end of file",
      "L'entrée dépasse la fin de fichier", "Leitura para além do fim do ficheiro",
      "Input oltre la fine del file"}},
    {error::permission_denied,
     {"Permiso denegado", "Permission denied", "Permission refusée", "Permissão negada",
      "Autorizzazione negata"}},
    {error::path_access,
     {"Error de acceso a la ruta o al archivo", "Path/File access error",
      "Erreur d'accès chemin/fichier", "Erro de acesso ao caminho/ficheiro",
      "Errore di accesso al percorso/file"}},
    {error::path_not_found,
     {"No se ha encontrado la ruta de acceso", "Path not found", "Chemin d'accès introuvable",
      "Caminho não encontrado", "Impossibile trovare il percorso"}},
    {error::object_not_set,
     {"Variable de objeto o de bloque With no establecida",
      "Object variable or With block variable not set",
      "Variable objet ou variable de bloc With non définie",
      "Variável de objeto ou variável de bloco With não definida",
      "Variabile oggetto o variabile del blocco With non impostata"}},
    {error::invalid_null,
     {"Uso no válido de Null", "Invalid use of Null", "Utilisation incorrecte de Null",
      "Utilização inválida de Null", "Uso non valido di Null"}},
    {error::not_an_array,
     {"El objeto no es una matriz", "Object not an array", "L'objet n'est pas un tableau",
      "O objeto não é uma matriz", "L'oggetto non è una matrice"}},
    {error::object_required,
     {"Se requiere un objeto", "Object required", "Objet requis", "É necessário um objeto",
      "Necessario oggetto"}},
    {error::cannot_create_object,
     {"El componente ActiveX no puede crear el objeto", "ActiveX component can't create object",
      "Un composant ActiveX ne peut pas créer d'objet",
      "O componente ActiveX não pode criar o objeto",
      "Il componente ActiveX non può creare l'oggetto"}},
    {error::no_such_member,
     {"El objeto no admite esta propiedad o método",
      "Object doesn't support this property or method",
      "Propriété ou méthode non gérée par cet objet",
      "O objeto não suporta esta propriedade ou método",
      "Proprietà o metodo non supportati dall'oggetto"}},
    {error::server_unavailable,
     {"El servidor remoto no existe o no está disponible",
      "The remote server machine does not exist or is unavailable",
      "Le serveur distant n'existe pas ou n'est pas disponible",
      "O servidor remoto não existe ou não está disponível",
      "Il server remoto non esiste o non è disponibile"}},
    {error::invalid_picture,
     {"Imagen no válida", "Invalid picture", "Image incorrecte", "Imagem inválida",
      "Immagine non valida"}},
    {error::printer,
     {"Error de impresora", "Printer error", "Erreur d'impression", "Erro da impressora",
      "Errore della stampante"}},
    {error::no_current_record,
     {"No hay ningún registro activo", "No current record", "Aucun enregistrement en cours",
      "Nenhum registo atual", "Nessun record corrente"}},
    {error::duplicate_key,
     {"Los cambios crearían valores duplicados en el índice o la clave principal",
      "The changes would create duplicate values in the index or primary key",
      "Les modifications créeraient des valeurs en double dans l'index ou la clé primaire",
      "As alterações criariam valores duplicados no índice ou na chave primária",
      "Le modifiche creerebbero valori duplicati nell'indice o nella chiave primaria"}},
    {error::invalid_database_path,
     {"No es una ruta de acceso válida", "Not a valid path", "Chemin d'accès non valide",
      "Não é um caminho válido", "Percorso non valido"}},
    {error::statement_syntax,
     {"Error de sintaxis en la instrucción de la base de datos",
      "Syntax error in the database statement",
      "Erreur de syntaxe dans l'instruction de la base de données",
      "Erro de sintaxe na instrução da base de dados",
      "Errore di sintassi nell'istruzione del database"}},
    {error::table_not_found,
     {"No se encuentra la tabla o consulta de entrada", "Cannot find the input table or query",
      "Table ou requête source introuvable",
      "Não foi possível encontrar a tabela ou consulta de entrada",
      "Impossibile trovare la tabella o query di input"}},
    {error::item_not_found,
     {"No se ha encontrado el elemento en esta colección", "Item not found in this collection",
      "Élément introuvable dans cette collection", "Item não encontrado nesta coleção",
      "Elemento non trovato in questo insieme"}},
    {error::unrecognized_database,
     {"Formato de base de datos no reconocido", "Unrecognized database format",
      "Format de base de données non reconnu", "Formato de base de dados não reconhecido",
      "Formato di database non riconosciuto"}},
});

constexpr std::array<std::string_view, 5> general_texts = {
    "Error definido por la aplicación o el objeto", "Application-defined or object-defined error",
    "Erreur définie par l'application ou par l'objet",
    "Erro definido pela aplicação ou pelo objeto",
    "Errore definito dall'applicazione o dall'oggetto"};

} // namespace

std::string error_description(int number, char language) {
    const auto found = languages.find(language);
    const std::size_t column = found == std::string_view::npos ? 0 : found;
    const auto* const row =
        std::find_if(error_texts.begin(), error_texts.end(),
                     [number](const ErrorText& text) { return text.number == number; });
    if (row != error_texts.end())
        return std::string(row->texts[column]);
    return std::string(general_texts[column]) + " (" + std::to_string(number) + ")";
}

} // namespace velmora
