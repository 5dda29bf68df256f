#pragma once

#include <QFrame>
#include <QString>

namespace ruvenmark {

// One line of plain text that takes no more room than it is given.
class ElidedLabel final : public QFrame {
public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    void SetText(const QString& text);
    // Told on hovering and to who cannot see it; beside the whole text where that is cut.
    void SetTip(const QString& tip);
    void SetWarning(bool bWarning); // A sign and a colour that ask for a look.
    const QString& Text() const { return m_text; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    int TextWidth() const;
    void RefreshTip();

    QString Shown() const;

    QString m_text;
    QString m_tip;
    bool m_bWarning = false;
};

} // namespace ruvenmark
