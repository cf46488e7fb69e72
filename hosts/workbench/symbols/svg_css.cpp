#include "workbench/symbols/svg_css.h"

#include <QRegularExpression>
#include <QStringList>

namespace workbench::symbols {

namespace {

[[nodiscard]] const QRegularExpression& externalPattern()
{
    static const QRegularExpression pattern(
        QStringLiteral(R"(\\|@import|@charset|@font-face|url\s*\(\s*["']?\s*(?!["'#\s]))"),
        QRegularExpression::CaseInsensitiveOption);
    return pattern;
}

[[nodiscard]] QStringList capturedTexts(const QRegularExpression& pattern, const QString& text)
{
    QStringList captured;
    auto matches = pattern.globalMatch(text);
    while (matches.hasNext())
        captured << matches.next().captured(1);
    return captured;
}

} // namespace

bool pointsOutside(QStringView css)
{
    return externalPattern().match(css.toString()).hasMatch();
}

QString filterDeclarations(const QString& style, const DeclarationFilter& filter)
{
    QStringList kept;
    const QStringList declarations = style.split(u';', Qt::SkipEmptyParts);
    for (const QString& declaration : declarations) {
        const qsizetype colon = declaration.indexOf(u':');
        if (colon < 0 || pointsOutside(declaration))
            continue;
        const QString name = declaration.left(colon).trimmed().toLower();
        const QString value = filter(name, declaration.mid(colon + 1).trimmed());
        if (!value.isEmpty())
            kept << name + u':' + value;
    }
    return kept.join(u';');
}

QString filterStyleSheet(const QString& css, bool keepDashes)
{
    if (pointsOutside(css))
        return {};
    if (keepDashes)
        return css;
    QString solid = css;
    return solid.replace(QStringLiteral("stroke-dasharray"), QStringLiteral("x-dasharray"),
                         Qt::CaseInsensitive);
}

QStringList dashArrays(const QString& css)
{
    static const QRegularExpression pattern(QStringLiteral(R"(stroke-dasharray\s*:([^;}]*))"),
                                            QRegularExpression::CaseInsensitiveOption);
    return capturedTexts(pattern, css);
}

QStringList urlFragments(QStringView value)
{
    static const QRegularExpression pattern(QStringLiteral(R"(url\s*\(\s*["']?\s*#([^"')\s]+))"),
                                            QRegularExpression::CaseInsensitiveOption);
    return capturedTexts(pattern, value.toString());
}

} // namespace workbench::symbols
