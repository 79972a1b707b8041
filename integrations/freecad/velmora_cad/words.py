"""What the add-on says, in the language of FreeCAD."""
import locale

import FreeCAD

_PREFERENCES = "User parameter:BaseApp/Preferences/General"
_LANGUAGES = {"Spanish": "es", "French": "fr", "Italian": "it", "Portuguese": "pt"}

# English, by which the others are found: Spanish, French, Italian, Portuguese.
_WORDS = {}
_ORDER = ("es", "fr", "it", "pt")


def language():
    """The one chosen in FreeCAD, else that of the machine."""
    chosen = FreeCAD.ParamGet(_PREFERENCES).GetString("Language", "")
    if chosen:
        return _LANGUAGES.get(chosen.split()[0].rstrip(","), "en")
    return (locale.getlocale(locale.LC_MESSAGES)[0] or "en")[:2]


def say(text, **parts):
    translations = dict(zip(_ORDER, _WORDS.get(text, ())))
    return translations.get(language(), text).format(**parts)


def count_of(kind, number):
    """"1 solid", "2 solids"; `kind` is the word for one."""
    one, more = _KINDS[kind].get(language(), _KINDS[kind]["en"])
    return f"{number} {one if number == 1 else more}"


_WORDS.update({
    "{name} is not flat, so it is no outline to cut.": (
        "{name} no es plano: no es un contorno que se pueda cortar.",
        "{name} n’est pas plan : ce n’est pas un contour à découper.",
        "{name} non è piano: non è un contorno da tagliare.",
        "{name} não é plano: não é um contorno para cortar.",
    ),
    "{name} lies in another plane than {other}. Hide one of them, or send a selection.": (
        "{name} está en otro plano que {other}. Oculta uno de los dos, o envía una selección.",
        "{name} est dans un autre plan que {other}. Masquez l’un des deux, ou envoyez une "
        "sélection.",
        "{name} è in un altro piano rispetto a {other}. Nascondine uno, o invia una selezione.",
        "{name} está noutro plano que {other}. Oculte um deles, ou envie uma seleção.",
    ),
    "{document} holds no lines to capture.": (
        "{document} no tiene líneas que capturar.",
        "{document} n’a aucune ligne à capturer.",
        "{document} non ha linee da catturare.",
        "{document} não tem linhas para capturar.",
    ),
    "{right} to the right, {up} up": (
        "{right} a la derecha, {up} arriba",
        "{right} à droite, {up} en haut",
        "{right} a destra, {up} in alto",
        "{right} à direita, {up} para cima",
    ),
    "{count} passed over: {names}": (
        "{count} sin capturar: {names}",
        "{count} hors capture : {names}",
        "{count} fuori dalla cattura: {names}",
        "{count} fora da captura: {names}",
    ),
    "waiting for Velmora": (
        "a la espera de Velmora", "en attente de Velmora", "in attesa di Velmora",
        "à espera do Velmora",
    ),
    "connected": ("conectado", "connecté", "collegato", "ligado"),
    "connected, no document yet": (
        "conectado, todavía sin documento", "connecté, pas encore de document",
        "collegato, ancora nessun documento", "ligado, ainda sem documento",
    ),
    "another CAD is already the one offered": (
        "otro CAD ya está ofrecido", "un autre CAO est déjà proposé",
        "un altro CAD è già offerto", "outro CAD já está oferecido",
    ),
    "Velmora has left": (
        "Velmora se ha ido", "Velmora est parti", "Velmora se n’è andato", "o Velmora saiu",
    ),
    "Send selection": (
        "Enviar la selección", "Envoyer la sélection", "Invia la selezione", "Enviar a seleção",
    ),
    "the next capture takes only: {names}": (
        "la próxima captura toma solo: {names}",
        "la prochaine capture ne prend que : {names}",
        "la prossima cattura prende solo: {names}",
        "a próxima captura toma apenas: {names}",
    ),
    "nothing is selected": (
        "no hay nada seleccionado", "rien n’est sélectionné", "non è selezionato nulla",
        "nada está selecionado",
    ),
    "Start of the cut": (
        "Inicio del corte", "Début de la découpe", "Inizio del taglio", "Início do corte",
    ),
    "The pick was given up.": (
        "Se ha renunciado a elegir el punto.",
        "Le choix du point a été abandonné.",
        "La scelta del punto è stata abbandonata.",
        "Desistiu-se de escolher o ponto.",
    ),
    "The document was closed during the pick.": (
        "El documento se cerró mientras se elegía el punto.",
        "Le document a été fermé pendant le choix du point.",
        "Il documento è stato chiuso durante la scelta del punto.",
        "O documento foi fechado durante a escolha do ponto.",
    ),
    "Velmora no longer waits for the point.": (
        "Velmora ya no espera el punto.",
        "Velmora n’attend plus le point.",
        "Velmora non attende più il punto.",
        "O Velmora já não espera o ponto.",
    ),
    "{document}, in mm": (
        "{document}, en mm",
        "{document}, en mm",
        "{document}, in mm",
        "{document}, em mm",
    ),
})

_KINDS = {
    "solid": {"en": ("solid", "solids"), "es": ("sólido", "sólidos"),
              "fr": ("solide", "solides"), "it": ("solido", "solidi"),
              "pt": ("sólido", "sólidos")},
    "surface": {"en": ("surface", "surfaces"), "es": ("superficie", "superficies"),
                "fr": ("surface", "surfaces"), "it": ("superficie", "superfici"),
                "pt": ("superfície", "superfícies")},
    "mesh": {"en": ("mesh", "meshes"), "es": ("malla", "mallas"),
             "fr": ("maillage", "maillages"), "it": ("mesh", "mesh"),
             "pt": ("malha", "malhas")},
    "points": {"en": ("point cloud", "point clouds"),
               "es": ("nube de puntos", "nubes de puntos"),
               "fr": ("nuage de points", "nuages de points"),
               "it": ("nuvola di punti", "nuvole di punti"),
               "pt": ("nuvem de pontos", "nuvens de pontos")},
    "dimension": {"en": ("dimension", "dimensions"), "es": ("cota", "cotas"),
                  "fr": ("cote", "cotes"), "it": ("quota", "quote"), "pt": ("cota", "cotas")},
    "text": {"en": ("text", "texts"), "es": ("texto", "textos"), "fr": ("texte", "textes"),
             "it": ("testo", "testi"), "pt": ("texto", "textos")},
    "image": {"en": ("image", "images"), "es": ("imagen", "imágenes"),
              "fr": ("image", "images"), "it": ("immagine", "immagini"),
              "pt": ("imagem", "imagens")},
    "other": {"en": ("object without lines", "objects without lines"),
              "es": ("objeto sin líneas", "objetos sin líneas"),
              "fr": ("objet sans lignes", "objets sans lignes"),
              "it": ("oggetto senza linee", "oggetti senza linee"),
              "pt": ("objeto sem linhas", "objetos sem linhas")},
}
