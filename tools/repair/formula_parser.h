#pragma once

#include <QStringView>

#include <optional>

namespace repair {

class Formulas;

/// Parses and computes one formula by descent.
class FormulaParser
{
public:
    FormulaParser(Formulas& formulas, QStringView text)
        : m_formulas(formulas)
        , m_text(text)
    {}

    [[nodiscard]] std::optional<double> parse();

private:
    [[nodiscard]] double sum();
    [[nodiscard]] double product();
    [[nodiscard]] double factor();
    [[nodiscard]] double parenthesized();
    [[nodiscard]] double call(QStringView name);
    [[nodiscard]] double named();
    [[nodiscard]] double literal();
    [[nodiscard]] QStringView word();
    bool take(QChar character);
    double fail();

    Formulas& m_formulas;
    QStringView m_text;
    qsizetype m_at = 0;
    bool m_hasFailed = false;
};

} // namespace repair
