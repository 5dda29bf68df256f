#include "desktop/dialogs/frm_filter_dialog.h"

#include "core/main_window.h"
#include "desktop/dialogs/dialog_buttons.h"
#include "desktop/dialogs/field_check.h"
#include "desktop/named_control.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace ruvenmark {

namespace {

constexpr int kWidth = 420;

// The controls' names differ by channel in their middle: txtRfLat, txtTcpLat, txtFlLat.
QString ControlName(const FilterTabTexts& texts, const char* name)
{
    constexpr std::array<const char*, 3> kMiddles = {"Rf", "Tcp", "Fl"};
    return QString::fromLatin1(name).arg(QLatin1String(kMiddles[static_cast<std::size_t>(texts.channel)]));
}

} // namespace

FrmFilterDialog::FrmFilterDialog(MainWindow& main, QWidget* parent)
    : FormDialog(parent), m_main(main), m_tabs(new QTabWidget(this))
{
    setWindowTitle(QStringLiteral("Filter Settings"));
    const DialogButtons buttons = MakeDialogButtons(*this, QStringLiteral("&Save"));
    auto* pinPoint = new QPushButton(QStringLiteral("&PinPoint"), this);
    NameControl(*pinPoint, "PinPoint", QStringLiteral("Take latitude and longitude from a click on the map"));
    pinPoint->setToolTip(pinPoint->accessibleName());
    pinPoint->setAutoDefault(false);
    connect(pinPoint, &QPushButton::clicked, this, [this] { frmFilter_PinPoint(m_main); });

    NameControl(*m_tabs, "SSTab1", QStringLiteral("Channel"));
    for (const FilterTabTexts& texts : kFilterTabs)
        m_tabs->addTab(MakeTab(texts, *buttons.cancel), ForDisplay(texts.caption));
    Bound().Bind(*m_tabs, m_main.frmFilter.SSTab1);

    auto* foot = new QHBoxLayout;
    foot->addWidget(pinPoint);
    foot->addLayout(buttons.row);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_tabs);
    layout->addLayout(foot);
    setTabOrder(m_lastField, pinPoint);
    setTabOrder(pinPoint, buttons.accept);
    setTabOrder(buttons.accept, buttons.cancel);
    resize(kWidth, sizeHint().height());
}

void FrmFilterDialog::accept()
{
    for (const Checked& checked : m_checked) {
        if (!CheckField(checked)) {
            m_tabs->setCurrentIndex(static_cast<int>(checked.channel));
            return;
        }
    }
    frmFilter_Save(m_main);
    QDialog::accept();
}

QWidget* FrmFilterDialog::MakeTab(const FilterTabTexts& texts, QAbstractButton& cancel)
{
    ReportFilter& filter = m_main.frmFilter.fields[static_cast<std::size_t>(texts.channel)];
    auto* tab = new QWidget(this);
    const QString callsHint = ForDisplay(kCallsHint);
    QCheckBox* on = MakeBox(texts, "chk%1Filter", QLatin1Char('&') + ForDisplay(texts.chkFilter), filter.bOn);
    QLineEdit* to = MakeEdit(texts, "txt%1To", QStringLiteral("Subnet"), ForDisplay(kSubnetHint), filter.Dest);
    QLineEdit* name = MakeEdit(texts, "txt%1Name", QStringLiteral("Accept"), callsHint, filter.Call);
    QLineEdit* reject = MakeEdit(texts, "txt%1Reject", QStringLiteral("Reject"), callsHint, filter.Reject);
    QCheckBox* tracked = MakeBox(
        texts, "chk%1Tracked", ForDisplay(texts.chkTracked).replace(QLatin1String(" track"), QLatin1String(" &track")),
        filter.bTracked);
    auto* lists = new QFormLayout;
    lists->addRow(QStringLiteral("S&ubnet"), to);
    lists->addRow(QStringLiteral("&Accept"), name);
    lists->addRow(QStringLiteral("R&eject"), reject);
    auto* layout = new QVBoxLayout(tab);
    layout->addWidget(on);
    layout->addLayout(lists);
    layout->addWidget(tracked);
    layout->addWidget(MakeRangeFrame(texts, filter, cancel));
    layout->addStretch();
    return tab;
}

QWidget* FrmFilterDialog::MakeRangeFrame(const FilterTabTexts& texts, ReportFilter& filter, QAbstractButton& cancel)
{
    auto* frame = new QGroupBox(ForDisplay(texts.frame), this);
    auto* unit = new QLabel(this);
    Bound().Bind(*unit, m_main.frmFilter.unitLabels[static_cast<std::size_t>(texts.channel)]);
    QLineEdit* range =
        MakeNumber(texts, "txt%1Range", QStringLiteral("Distance"), {}, filter.Range, FilterField::Range, cancel);
    QLineEdit* lat = MakeNumber(texts, "txt%1Lat", QStringLiteral("Latitude"), QStringLiteral("+/-dd.dddd"), filter.Lat,
                                FilterField::Lat, cancel);
    QLineEdit* lon = MakeNumber(texts, "txt%1Lon", QStringLiteral("Longitude"), QStringLiteral("+/-ddd.dddd"),
                                filter.Lon, FilterField::Lon, cancel);
    auto* distance = new QHBoxLayout;
    distance->addWidget(range);
    distance->addWidget(unit);
    auto* distanceLabel = new QLabel(QStringLiteral("&Distance"), this);
    distanceLabel->setBuddy(range);
    auto* fields = new QFormLayout(frame);
    fields->addRow(distanceLabel, distance);
    fields->addRow(QStringLiteral("&Latitude"), lat);
    fields->addRow(QStringLiteral("L&ongitude"), lon);
    fields->addRow(MakeBox(texts, "chk%1Apply", QStringLiteral("Reject positio&nless reports"), filter.bApply));
    return frame;
}

QLineEdit* FrmFilterDialog::MakeEdit(const FilterTabTexts& texts, const char* name, const QString& label,
                                     const QString& hint, std::string& field)
{
    auto* edit = new QLineEdit(this);
    NameControl(*edit, qPrintable(ControlName(texts, name)), label);
    edit->setToolTip(hint);
    edit->setAccessibleDescription(hint);
    Bound().Bind(*edit, field);
    return edit;
}

QCheckBox* FrmFilterDialog::MakeBox(const FilterTabTexts& texts, const char* name, const QString& text, bool& field)
{
    auto* box = new QCheckBox(text, this);
    NameControl(*box, qPrintable(ControlName(texts, name)), text);
    Bound().Bind(*box, field);
    m_lastField = box;
    return box;
}

QLineEdit* FrmFilterDialog::MakeNumber(const FilterTabTexts& texts, const char* name, const QString& label,
                                       const QString& hint, std::string& field, FilterField which,
                                       QAbstractButton& cancel)
{
    QLineEdit* edit = MakeEdit(texts, name, label, hint, field);
    edit->setPlaceholderText(hint);
    const Checked checked{texts.channel, which};
    m_checked.push_back(checked);
    // The message comes and the field is emptied; the focus may go on.
    new FieldCheck(*edit, cancel, [this, checked] {
        CheckField(checked);
        return true;
    });
    return edit;
}

// False where the field was emptied for what it held.
bool FrmFilterDialog::CheckField(Checked checked)
{
    const std::string message = frmFilter_LostFocus(m_main.frmFilter, checked.channel, checked.field);
    if (message.empty())
        return true;
    Refresh();
    m_main.services.prompts.Message(message);
    return false;
}

} // namespace ruvenmark
