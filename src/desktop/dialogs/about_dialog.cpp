#include "desktop/dialogs/about_dialog.h"

#include "desktop/icons/icon_set.h"
#include "desktop/named_control.h"
#include "platform/program_name.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace ruvenmark {

namespace {

constexpr const char* kCredits = "<p>A station client for the Automatic Packet Reporting System (APRS).</p>"
                                 "<p><b>The map</b><br/>"
                                 "Coasts, lakes and rivers: GSHHG by P. Wessel and W. H. F. Smith, LGPL.<br/>"
                                 "Countries and states: Natural Earth, public domain.<br/>"
                                 "Places: GeoNames, CC BY 4.0.<br/>"
                                 "Online tiles, where they are switched on, are credited on the map.</p>"
                                 "<p><b>The pictures</b><br/>"
                                 "Many are made from Material Design Icons by A. Andrews and Google, CC BY 4.0.</p>";

} // namespace

AboutDialog::AboutDialog(const IconSet& icons, QWidget* parent) : FormDialog(parent)
{
    constexpr int kPictureSize = 64;
    setWindowTitle(QStringLiteral("About Ruvenmark"));
    auto* picture = new QLabel(this);
    picture->setPixmap(icons.Program().pixmap(QSize(kPictureSize, kPictureSize), devicePixelRatioF()));
    picture->setAlignment(Qt::AlignTop);
    auto* text = new QLabel(this);
    text->setTextFormat(Qt::RichText);
    text->setText(QStringLiteral("<h2>Ruvenmark %1</h2>").arg(QString::fromStdString(std::string(ProgramVersion()))) +
                  QString::fromUtf8(kCredits));
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    NameControl(*text, "lblAbout", QStringLiteral("About Ruvenmark"));
    auto* close = new QPushButton(QStringLiteral("&Close"), this);
    NameControl(*close, "OK", close->text());
    close->setDefault(true);
    close->setFocus();
    connect(close, &QPushButton::clicked, this, &QDialog::accept);

    auto* top = new QHBoxLayout;
    top->setSpacing(16);
    top->addWidget(picture);
    top->addWidget(text, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(close, 0, Qt::AlignRight);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

} // namespace ruvenmark
