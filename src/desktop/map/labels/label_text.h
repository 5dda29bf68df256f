#pragma once

#include <QColor>
#include <QFont>
#include <QHash>
#include <QImage>
#include <QPointF>
#include <QSizeF>
#include <QString>

class QPainter;

namespace ruvenmark {

// How one sort of name on the map is written. Lines in a text are parted by '\n' and centred.
struct LabelFace {
    QFont font;
    QColor color, halo;
    int number = 0; // Tells the faces of one LabelText apart.
};

// Draws names with a halo and keeps the pictures, so that a frame of a moving map only copies them.
class LabelText {
public:
    // Forgets all pictures when the ratio (device pixels for one of the view) or `look` changes: any number that tells
    // colours and letter sizes apart.
    void SetLook(double ratio, int look);

    // Without the halo.
    QSizeF Size(const LabelFace& face, const QString& text);
    // Centred; bVector: as letters, for printers.
    void Paint(QPainter& painter, const LabelFace& face, const QString& text, QPointF centre, bool bVector);
    // The mark of a place in the face's colours: a ring, or a full disk.
    void PaintDot(QPainter& painter, const LabelFace& face, bool bFull, QPointF centre, bool bVector);
    static constexpr double kDotRadius = 2.2; // Without the width of its line.

private:
    struct Entry {
        QSizeF size;
        QImage picture; // Null until painted.
    };

    void PaintPicture(QPainter& painter, const QImage& picture, QPointF corner) const;
    Entry& EntryOf(const LabelFace& face, const QString& text);
    QImage Render(const LabelFace& face, const QString& text, QSizeF size) const;

    double m_ratio = 1;
    int m_look = -1;
    QHash<QString, Entry> m_entries;
    QHash<int, QImage> m_dots;
};

} // namespace ruvenmark
