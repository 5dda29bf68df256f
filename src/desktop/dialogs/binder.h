#pragma once

#include "desktop/shown_text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTabWidget>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace ruvenmark {

// Ties the widgets of a dialog to fields of the logic, both ways: what the operator enters is in the field at once, and
// Refresh shows what the logic has put there. The fields must outlive the widgets. A text that nobody edits keeps its
// bytes.
class Binder {
public:
    void Bind(QLineEdit& edit, std::string& field)
    {
        QObject::connect(&edit, &QLineEdit::textEdited, &edit,
                         [&field](const QString& text) { field = Entered(text); });
        Add([&edit, &field] {
            if (const QString text = ForDisplay(field); edit.text() != text)
                edit.setText(text);
        });
    }

    void Bind(QCheckBox& box, bool& field)
    {
        QObject::connect(&box, &QCheckBox::toggled, &box, [&field](bool bOn) { field = bOn; });
        Add([&box, &field] { box.setChecked(field); });
    }

    // The two stand for yes and no.
    void Bind(QRadioButton& yes, QRadioButton& no, bool& field)
    {
        QObject::connect(&yes, &QRadioButton::toggled, &yes, [&field](bool bOn) { field = bOn; });
        Add([&yes, &no, &field] { (field ? yes : no).setChecked(true); });
    }

    // The index in the list; one outside it shows nothing and is kept until something is chosen.
    void Bind(QComboBox& list, std::int32_t& field)
    {
        QObject::connect(&list, &QComboBox::activated, &list, [&field](int index) { field = index; });
        Add([&list, &field] { list.setCurrentIndex(field >= 0 && field < list.count() ? field : -1); });
    }

    // The text of an editable list, typed or chosen.
    void Bind(QComboBox& list, std::string& field)
    {
        list.setInsertPolicy(QComboBox::NoInsert);
        list.setCompleter(nullptr); // It would show more than was typed.
        const auto take = [&list, &field] { field = Entered(list.currentText()); };
        QObject::connect(list.lineEdit(), &QLineEdit::textEdited, &list, take);
        QObject::connect(&list, &QComboBox::activated, &list, take);
        Add([&list, &field] {
            if (const QString text = ForDisplay(field); list.currentText() != text)
                list.setEditText(text);
        });
    }

    // The tab in front.
    void Bind(QTabWidget& tabs, int& field)
    {
        QObject::connect(&tabs, &QTabWidget::currentChanged, &tabs, [&field](int tab) { field = tab; });
        Add([&tabs, &field] { tabs.setCurrentIndex(field); });
    }

    void Bind(QLabel& label, const std::string& field)
    {
        Add([&label, &field] { label.setText(ForDisplay(field)); });
    }

    void Refresh() const
    {
        for (const auto& show : m_shows)
            show();
    }

private:
    // One line: what is pasted may hold line ends, shown as blanks, which would go unseen into settings and packets.
    static std::string Entered(QString text)
    {
        while (!text.isEmpty() && IsBreak(text.back().unicode()))
            text.chop(1);
        for (QChar& c : text)
            if (IsBreak(c.unicode()) || c.isNull())
                c = QChar::Space;
        return text.toStdString();
    }

    void Add(std::function<void()> show)
    {
        show();
        m_shows.push_back(std::move(show));
    }

    std::vector<std::function<void()>> m_shows;
};

} // namespace ruvenmark
