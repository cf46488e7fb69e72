#pragma once

#include <QString>
#include <QStringView>

class QXmlStreamAttribute;
class QXmlStreamAttributes;

namespace svglimits {

/// In which units a sanitized drawing writes its lengths.
enum class LengthUnits {
    AsWritten, ///< unchanged; Qt's renderer takes 1/90 inch for a pixel
    UserUnits, ///< converted to pixels of 1/96 inch, as the standard defines them
};

/// Filters the values of attributes, and counts the dashes of the outlines on the way.
class SvgAttributeFilter
{
public:
    SvgAttributeFilter(LengthUnits units, bool keepDashes)
        : m_units(units)
        , m_keepDashes(keepDashes)
    {}

    /// Whether all coordinates of an element are within the limits.
    [[nodiscard]] static bool hasCoordinatesWithinLimits(const QXmlStreamAttributes& attributes);

    /// The value that may stay; empty if the attribute must be left out.
    [[nodiscard]] QString valueOf(const QXmlStreamAttribute& attribute);
    /// The text of a style sheet that may stay.
    [[nodiscard]] QString styleSheet(const QString& css);
    /// The estimated number of dashes of all outlines.
    [[nodiscard]] double dashes() const
    {
        return m_dashPeriod > 0.0 ? m_coordinates * m_greatest / m_dashPeriod : 0.0;
    }

private:
    [[nodiscard]] QString declaration(const QString& name, const QString& value);
    [[nodiscard]] QString length(const QString& name, const QString& value) const;
    void measure(QStringView name, QStringView value);
    void measureDashes(const QString& value);

    LengthUnits m_units;
    bool m_keepDashes;
    double m_coordinates = 0.0;
    double m_greatest = 0.0;
    double m_dashPeriod = 0.0;
};

} // namespace svglimits
