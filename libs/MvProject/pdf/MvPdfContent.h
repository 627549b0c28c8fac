// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/mvproject_export.h"

#include <QByteArray>
#include <QPainterPath>
#include <QRgb>
#include <QTransform>

#include <map>
#include <optional>
#include <vector>

class MvPressColors;
class QPen;

/// The drawing commands of a page, a picture or a glyph. Coordinates are whole numbers of a unit that is small enough
/// for it, upwards; what is in force already is not said again. Colours are those of a screen, or become inks of a
/// press.
class MVPROJECT_EXPORT MvPdfContent
{
public:
    /// Whether a path's parts are closed where they end at their start: lines are joined there, fills need it not.
    enum class Subpaths { Closed, AsTheyAre };

    /// The press, if any, outlives it.
    explicit MvPdfContent(const MvPressColors *press = nullptr);

    void save();
    void restore();
    int depth() const { return int(m_outer.size()); }

    void concat(const QTransform &transform);
    void setFillColor(QRgb color);
    void setStrokeColor(QRgb color);
    /// For lines, until the next restore(): that of the colour space.
    void setRegistrationColor(int object) { call("ColorSpace", object, " CS 1 SCN\n"); }
    /// Width and dashes are multiplied by the scale.
    void setPen(const QPen &pen, double scale);
    /// A state that sets nothing but how inks meet is not translucent.
    void setState(int object, bool isTranslucent = true);
    /// 0 as long as none was set.
    int state() const { return m_now.state; }

    void addPath(const QPainterPath &path, Subpaths subpaths, int decimals = 0);
    void addRect(const QRectF &rect, int decimals = 0);
    /// Paints or clips to what was added: "f", "f*", "S", "W n", "W* n".
    void finishPath(const char *command);

    void paintShading(int object) { call("Shading", object, " sh\n"); }
    void paintObject(int object) { call("XObject", object, " Do\n"); }
    void setFont(int object, double size);
    /// Anything else.
    void append(const QByteArray &commands) { m_bytes += commands; }

    QByteArray bytes() const { return m_bytes; }
    /// The dictionary of the objects that the commands name.
    QByteArray resources() const;
    /// Whether opacity or blending is set anywhere.
    bool isTranslucent() const { return m_isTranslucent; }

    /// The upright rectangle that a path is; its size is negative where the path goes round it the other way.
    static std::optional<QRectF> rectOf(const QPainterPath &path);

private:
    struct Graphics
    {
        QRgb fill = qRgb(0, 0, 0);
        QRgb stroke = qRgb(0, 0, 0);
        QByteArray pen;
        int state = 0;
        int font = 0;
        double fontSize = 0.0;
    };

    QByteArray name(const char *kind, int object);
    void call(const char *kind, int object, const char *command);
    void use(int &now, int object, const char *kind, const char *command);
    void appendColor(QRgb color, const char *command);
    void appendInks(QRgb color, const char *command);
    static std::optional<QRectF> rectAt(const QPainterPath &path, int first);

    const MvPressColors *m_press;
    QByteArray m_bytes;
    bool m_isTranslucent = false;
    Graphics m_now;
    std::vector<Graphics> m_outer;
    std::map<QByteArray, std::map<int, QByteArray>> m_resources; // names by kind and object
};
