#pragma once

#include <QWidget>

class QToolButton;

namespace ruvenmark {

class IconSet;

// The two buttons in the map's corner.
class ZoomButtons : public QWidget {
    Q_OBJECT

public:
    ZoomButtons(const IconSet& icons, QWidget* parent);

    void SetEnabled(bool bIn, bool bOut);

signals:
    void ZoomIn();
    void ZoomOut();

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void SetIcons();

    const IconSet& m_icons;
    QToolButton* m_in;
    QToolButton* m_out;
};

} // namespace ruvenmark
