#include "desktop/dialogs/frm_gps_panel.h"

#include "core/main_window.h"
#include "desktop/named_control.h"
#include "links/gps_panel.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace ruvenmark {

FrmGpsPanel::FrmGpsPanel(MainWindow& main, QWidget* parent) : FormDialog(parent), m_main(main), m_large(font())
{
    constexpr double kLarger = 1.6;
    m_large.setPointSizeF(m_large.pointSizeF() * kLarger);
    setWindowTitle(QStringLiteral("GPS Panel"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(MakeValue("lblStatus", main.frmGpsPanel.lblStatus), 0, Qt::AlignHCenter);
    layout->addLayout(MakeReadings());
    layout->addWidget(MakeDestination());
    layout->addStretch();
    // Wide enough for any place, so that nothing moves while the values change.
    setMinimumWidth(QFontMetrics(m_large).horizontalAdvance(QStringLiteral("LONGITUDE:  -179.123456789012")));
}

QLabel* FrmGpsPanel::MakeValue(const char* name, const std::string& text)
{
    auto* label = new QLabel(this);
    label->setObjectName(QLatin1String(name));
    label->setFont(m_large);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    Bound().Bind(*label, text);
    return label;
}

QPushButton* FrmGpsPanel::MakeButton(const char* name, const QString& text, void (*run)(MainWindow&))
{
    auto* button = new QPushButton(text, this);
    NameControl(*button, name, text);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, run] { run(m_main); });
    return button;
}

QFormLayout* FrmGpsPanel::MakeReadings()
{
    const GpsPanelState& panel = m_main.frmGpsPanel;
    auto* rows = new QFormLayout;
    rows->addRow(QStringLiteral("LATITUDE:"), MakeValue("lblLat", panel.lblLat));
    rows->addRow(QStringLiteral("LONGITUDE:"), MakeValue("lblLon", panel.lblLon));
    rows->addRow(QStringLiteral("ALTITUDE:"), MakeValue("lblAlt", panel.lblAlt));
    rows->addRow(QStringLiteral("COURSE:"), MakeValue("lblCourse", panel.lblCourse));
    rows->addRow(QStringLiteral("SPEED:"), MakeValue("lblSpeed", panel.lblSpeed));
    rows->addRow(QStringLiteral("DISTANCE:"), MakeValue("lblDistance", panel.lblDistance));
    rows->addRow(QStringLiteral("DURATION:"), MakeValue("lblDuration", panel.lblDuration));
    return rows;
}

QWidget* FrmGpsPanel::MakeDestination()
{
    const GpsPanelState& panel = m_main.frmGpsPanel;
    auto* frame = new QGroupBox(QStringLiteral("Destination"), this);
    QPushButton* set = MakeButton("Command1", QStringLiteral("&Set"), frmGpsPanel_Command1_Click);
    set->setToolTip(QStringLiteral("Take the destination from a click on the map"));
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(set);
    buttons->addWidget(MakeButton("Command2", QStringLiteral("&Clear"), frmGpsPanel_Command2_Click));
    auto* rows = new QFormLayout(frame);
    rows->addRow(QStringLiteral("Latitude"), MakeValue("lblDestLat", panel.lblDestLat));
    rows->addRow(QStringLiteral("Longitude"), MakeValue("lblDestLon", panel.lblDestLon));
    rows->addRow(buttons);
    return frame;
}

} // namespace ruvenmark
