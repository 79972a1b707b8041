#include "adapters/qt/file_filter.h"

#include "toolkit/qt_text.h"

#include <QRegularExpression>
#include <QStringList>

namespace velmora {

namespace {

bool is_pattern_list(const QString& text) {
    static const QRegularExpression list(R"(^\s*\*\.[\w*?]+(\s*;\s*\*\.[\w*?]+)*\s*$)");
    return list.match(text).hasMatch();
}

/// What is in the last brackets of a name, when it is a pattern.
QString pattern_in(const QString& name) {
    static const QRegularExpression brackets(R"(\(([^()]*)\)\s*$)");
    const QString found = brackets.match(name).captured(1);
    return is_pattern_list(found) ? found : QString();
}

/// Names and patterns in turn, with missing bars put back.
QStringList separated(const QString& filter) {
    QStringList pieces;
    for (const QString& piece : filter.split('|')) {
        const QString expected = pieces.size() % 2 == 1 ? pattern_in(pieces.last()) : QString();
        const bool glued = !expected.isEmpty() && piece.startsWith(expected) &&
                           piece.size() > expected.size() && !is_pattern_list(piece);
        if (glued)
            pieces << expected << piece.mid(expected.size());
        else
            pieces << piece;
    }
    return pieces;
}

/// "*.ico;*.cur" as "*.ico *.ICO *.cur *.CUR": not every desktop's dialog overlooks capitals.
QString both_cases(const QString& patterns) {
    QStringList result;
    for (const QString& pattern : patterns.split(';', Qt::SkipEmptyParts)) {
        const QString bare = pattern.trimmed();
        for (const QString& written : {bare.toLower(), bare.toUpper()})
            if (!result.contains(written))
                result << written;
    }
    return result.join(' ');
}

QString name_alone(QString name) {
    const QString pattern = pattern_in(name);
    if (!pattern.isEmpty())
        name.truncate(name.lastIndexOf('('));
    return name.trimmed();
}

} // namespace

QString toolkit_filter(std::string_view filter) {
    const QStringList pieces = separated(qt_text(filter));
    QStringList lines;
    for (qsizetype i = 0; i + 1 < pieces.size(); i += 2)
        if (is_pattern_list(pieces[i + 1]))
            lines << QStringLiteral("%1 (%2)").arg(name_alone(pieces[i]),
                                                   both_cases(pieces[i + 1]));
    return lines.join(QStringLiteral(";;"));
}

} // namespace velmora
