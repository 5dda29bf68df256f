#include "desktop/dialogs/frm_options_dialog.h"

#include "core/main_window.h"
#include "desktop/dialogs/dialog_buttons.h"
#include "desktop/dialogs/field_check.h"
#include "desktop/named_control.h"
#include "options/options_rules.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace ruvenmark {

namespace {

constexpr int kNumberCharacters = 14;
constexpr int kTextCharacters = 34;

void Name(QWidget& control, const OptionBox& box)
{
    NameControl(control, std::string(box.control).c_str(), ForDisplay(box.caption));
    const QString unit = ForDisplay(box.unit);
    control.setAccessibleDescription(unit);
}

bool HasBrowse(const OptionBox& box)
{
    return box.kind == OptionKind::Wave || box.kind == OptionKind::Map || box.kind == OptionKind::Log;
}

// The labels of all frames of a page are of one width, so that the boxes stand in one column.
void AlignFields(const QWidget& page)
{
    int width = 0;
    for (const auto* label : page.findChildren<QLabel*>())
        if (label->buddy())
            width = std::max(width, label->sizeHint().width());
    for (auto* frame : page.findChildren<QGroupBox*>())
        static_cast<QGridLayout*>(frame->layout())->setColumnMinimumWidth(0, width);
}

} // namespace

FrmOptionsDialog::FrmOptionsDialog(MainWindow& main, QWidget* parent)
    : FormDialog(parent), m_main(main), m_form(main.frmOptions), m_tabs(new QTabWidget(this))
{
    setWindowTitle(QStringLiteral("Settings"));
    NameControl(*m_tabs, "SSTab1", QStringLiteral("Page"));
    for (std::size_t i = 0; i < kOptionPages.size(); ++i)
        m_tabs->addTab(MakePage(static_cast<OptionPage>(i)), ForDisplay(kOptionPages[i]));
    m_pinPoint = MakePinPoint();
    const DialogButtons buttons = MakeDialogButtons(*this, QStringLiteral("&Save"));
    Bound().Bind(*m_tabs, m_form.SSTab1);
    connect(m_tabs, &QTabWidget::currentChanged, this, &FrmOptionsDialog::ShowPinPoint);
    for (const NumberEdit& number : m_numbers)
        new FieldCheck(*number.edit, *buttons.cancel, [this, box = number.box] {
            CheckBox(*box);
            return true;
        });
    auto* foot = new QHBoxLayout;
    foot->addWidget(m_pinPoint);
    foot->addLayout(buttons.row);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_tabs);
    layout->addLayout(foot);
    ShowFallbacks();
    ShowPinPoint();
}

void FrmOptionsDialog::accept()
{
    frmOptions_Save(m_main); // Closes the window.
}

void FrmOptionsDialog::Refresh()
{
    FormDialog::Refresh();
    ShowFallbacks();
    ShowPinPoint();
}

// A setting that names no entry counts as the first one, in all the lists; it stays as it is until one is chosen.
void FrmOptionsDialog::ShowFallbacks()
{
    for (QComboBox* list : m_lists)
        if (list->currentIndex() < 0)
            list->setCurrentIndex(0);
}

QWidget* FrmOptionsDialog::MakePage(OptionPage page)
{
    auto* widget = new QWidget(m_tabs);
    auto* layout = new QVBoxLayout(widget);
    for (const OptionFrameInfo& info : kOptionFrames) {
        if (info.page != page)
            continue;
        auto* frame = new QGroupBox(ForDisplay(info.title), widget);
        FillFrame(*new QGridLayout(frame), info.frame);
        layout->addWidget(frame);
    }
    layout->addStretch();
    AlignFields(*widget);
    return widget;
}

void FrmOptionsDialog::FillFrame(QGridLayout& rows, OptionFrame frame)
{
    rows.setColumnStretch(1, 1);
    for (const OptionBox& box : kOptionBoxes)
        if (box.frame == frame)
            AddRow(rows, box);
}

void FrmOptionsDialog::AddRow(QGridLayout& rows, const OptionBox& box)
{
    if (box.kind == OptionKind::Tick || box.kind == OptionKind::DigitTick)
        return AddTick(rows, box);
    if (box.kind == OptionKind::Radio)
        return AddRadio(rows, box);
    const int row = rows.rowCount();
    QWidget* field = MakeField(box);
    Name(*field, box);
    auto* label = new QLabel(ForDisplay(box.caption), this);
    label->setBuddy(field);
    auto* line = new QHBoxLayout;
    line->addWidget(field, box.kind == OptionKind::Number ? 0 : 1);
    if (HasBrowse(box))
        line->addWidget(MakeBrowse(box));
    if (!box.unit.empty())
        line->addWidget(new QLabel(ForDisplay(box.unit), this));
    if (box.kind == OptionKind::Number)
        line->addStretch();
    rows.addWidget(label, row, 0);
    rows.addLayout(line, row, 1);
}

void FrmOptionsDialog::AddTick(QGridLayout& rows, const OptionBox& box)
{
    auto* tick = new QCheckBox(ForDisplay(box.caption), this);
    Name(*tick, box);
    Bound().Bind(*tick, FieldOf(m_form, box).bTicked);
    rows.addWidget(tick, rows.rowCount(), 0, 1, 2);
}

void FrmOptionsDialog::AddRadio(QGridLayout& rows, const OptionBox& box)
{
    auto* first = new QRadioButton(ForDisplay(box.caption), this);
    auto* second = new QRadioButton(ForDisplay(kOptMeCaption), this);
    Name(*first, box);
    NameControl(*second, "optMe", ForDisplay(kOptMeCaption));
    const int row = rows.rowCount();
    rows.addWidget(first, row, 0, 1, 2);
    rows.addWidget(second, row + 1, 0, 1, 2);
    Bound().Bind(*first, *second, FieldOf(m_form, box).bTicked);
}

QWidget* FrmOptionsDialog::MakeField(const OptionBox& box)
{
    return box.kind == OptionKind::List ? MakeList(box) : MakeEdit(box);
}

QWidget* FrmOptionsDialog::MakeList(const OptionBox& box)
{
    auto* list = new QComboBox(this);
    for (const std::string_view choice : ChoicesOf(box))
        list->addItem(ForDisplay(choice));
    Bound().Bind(*list, FieldOf(m_form, box).choice);
    m_lists.push_back(list);
    return list;
}

QWidget* FrmOptionsDialog::MakeEdit(const OptionBox& box)
{
    auto* edit = new QLineEdit(this);
    Bound().Bind(*edit, FieldOf(m_form, box).text);
    const int character = fontMetrics().averageCharWidth();
    if (box.kind == OptionKind::Number)
        edit->setFixedWidth(kNumberCharacters * character);
    else
        edit->setMinimumWidth(kTextCharacters * character);
    if (box.rule)
        m_numbers.push_back({edit, &box});
    return edit;
}

QPushButton* FrmOptionsDialog::MakeBrowse(const OptionBox& box)
{
    const bool bWave = box.kind == OptionKind::Wave;
    auto* browse = new QPushButton(bWave ? QStringLiteral("&Browse...") : QStringLiteral("Browse..."), this);
    const QString name = bWave ? QStringLiteral("Command1") : QStringLiteral("cmd") + ForDisplay(box.control.substr(3));
    NameControl(*browse, qPrintable(name), QStringLiteral("Browse for ") + ForDisplay(box.caption));
    browse->setAutoDefault(false);
    connect(browse, &QPushButton::clicked, this, [this, &box] {
        frmOptions_Browse(m_main, box);
        Refresh();
    });
    return browse;
}

QPushButton* FrmOptionsDialog::MakePinPoint()
{
    auto* button = new QPushButton(QStringLiteral("&PinPoint"), this);
    NameControl(*button, "PinPoint", QStringLiteral("Take latitude and longitude from a click on the map"));
    button->setToolTip(button->accessibleName());
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this] { frmOptions_PinPoint(m_main); });
    return button;
}

void FrmOptionsDialog::CheckBox(const OptionBox& box)
{
    const std::string message = frmOptions_LostFocus(m_form, box);
    Refresh();
    if (!message.empty())
        m_main.services.prompts.Message(message);
}

void FrmOptionsDialog::ShowPinPoint()
{
    m_pinPoint->setVisible(IsPinPointOffered(m_form));
}

} // namespace ruvenmark
