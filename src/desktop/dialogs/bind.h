#pragma once

#include "desktop/shown_text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

#include <cstdint>
#include <string>

// Shows a field of the logic in a widget and writes what the user enters back. The field must outlive the widget. A
// text that nobody edits keeps its bytes.
namespace ruvenmark {

inline void Bind(QLineEdit& edit, std::string& field)
{
    edit.setText(ForDisplay(field));
    QObject::connect(&edit, &QLineEdit::textEdited, &edit,
                     [&field](const QString& text) { field = text.toStdString(); });
}

inline void Bind(QCheckBox& box, bool& field)
{
    box.setChecked(field);
    QObject::connect(&box, &QCheckBox::toggled, &box, [&field](bool on) { field = on; });
}

// The index in the list; an index outside it shows nothing and is kept until something is chosen.
inline void Bind(QComboBox& list, std::int32_t& field)
{
    list.setCurrentIndex(field >= 0 && field < list.count() ? field : -1);
    QObject::connect(&list, &QComboBox::activated, &list, [&field](int index) { field = index; });
}

} // namespace ruvenmark
