#pragma once

#include <QFrame>
#include <QString>

namespace ruvenmark {

// One line of plain text that takes no more room than it is given.
class ElidedLabel final : public QFrame {
public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    void SetText(const QString& text);
    const QString& Text() const { return m_text; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    int TextWidth() const;
    void RefreshTip();

    QString m_text;
};

} // namespace ruvenmark
