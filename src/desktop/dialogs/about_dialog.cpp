#include "desktop/dialogs/about_dialog.h"

#include "desktop/icons/icon_set.h"
#include "desktop/named_control.h"
#include "platform/program_name.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
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
                                 "Many are made from Material Design Icons by A. Andrews and Google, CC BY 4.0.</p>"
                                 "<p><b>Licence</b><br/>"
                                 "Copyright &copy; 2026 The Ruvenmark developers. Free software (MIT licence):</p>";
// As in the file LICENSE.
constexpr const char* kLicence =
    "Permission is hereby granted, free of charge, to any person obtaining a copy of this software and associated "
    "documentation files (the \"Software\"), to deal in the Software without restriction, including without limitation "
    "the rights to use, copy, modify, merge, publish, distribute, sublicense, and/or sell copies of the Software, and "
    "to "
    "permit persons to whom the Software is furnished to do so, subject to the following conditions:\n\n"
    "The above copyright notice and this permission notice shall be included in all copies or substantial portions of "
    "the Software.\n\n"
    "THE SOFTWARE IS PROVIDED \"AS IS\", WITHOUT WARRANTY OF ANY KIND, EXPRESS OR IMPLIED, INCLUDING BUT NOT LIMITED "
    "TO "
    "THE WARRANTIES OF MERCHANTABILITY, FITNESS FOR A PARTICULAR PURPOSE AND NONINFRINGEMENT. IN NO EVENT SHALL THE "
    "AUTHORS OR COPYRIGHT HOLDERS BE LIABLE FOR ANY CLAIM, DAMAGES OR OTHER LIABILITY, WHETHER IN AN ACTION OF "
    "CONTRACT, "
    "TORT OR OTHERWISE, ARISING FROM, OUT OF OR IN CONNECTION WITH THE SOFTWARE OR THE USE OR OTHER DEALINGS IN THE "
    "SOFTWARE.";

} // namespace

AboutDialog::AboutDialog(const IconSet& icons, QWidget* parent) : FormDialog(parent)
{
    constexpr int kPictureSize = 64;
    constexpr int kLicenceLines = 8;
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
    auto* licence = new QPlainTextEdit(QString::fromUtf8(kLicence), this);
    licence->setReadOnly(true);
    licence->setTabChangesFocus(true);
    licence->setFixedHeight(kLicenceLines * licence->fontMetrics().lineSpacing());
    NameControl(*licence, "txtLicence", QStringLiteral("Licence"));
    auto* close = new QPushButton(QStringLiteral("&Close"), this);
    NameControl(*close, "OK", close->text());
    close->setDefault(true);
    close->setFocus();
    connect(close, &QPushButton::clicked, this, &QDialog::accept);

    auto* top = new QHBoxLayout;
    top->setSpacing(16);
    top->addWidget(picture);
    auto* words = new QVBoxLayout;
    words->addWidget(text);
    words->addWidget(licence);
    top->addLayout(words, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(close, 0, Qt::AlignRight);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

} // namespace ruvenmark
