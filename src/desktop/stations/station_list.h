#pragma once

#include "core/channel.h"

#include <QByteArray>
#include <QPersistentModelIndex>
#include <QString>
#include <QWidget>

#include <string>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QModelIndex;
class QTableView;

namespace ruvenmark {

class IconSet;
class StationModel;
struct MainWindow;

// How the operator has arranged it.
struct StationListLook {
    QString calls;
    int within = 0; // Row of the box.
    bool bDirect = false;
    QByteArray columns; // Widths and order, as the toolkit tells them.
};

// The table of all stations with its filter above it. It costs only while it stands.
class StationList final : public QWidget {
    Q_OBJECT

public:
    StationList(MainWindow& main, const IconSet& icons, QWidget* parent = nullptr);

    StationListLook Look() const;
    void SetLook(const StationListLook& look);

signals:
    void ShowWanted(ruvenmark::Channel channel, const std::string& call);
    void DeleteWanted(ruvenmark::Channel channel, const std::string& call);
    // Of the selected station; and where it belongs, on the screen.
    void MenuWanted(ruvenmark::Channel channel, const std::string& call, QPoint place);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void MakeFilter();
    void MakeTable();
    void TakeFilter();
    void ShowCount();
    void Delete(const QModelIndex& station);
    void StayInPlace();
    void Copy();
    Channel ChannelAt(const QModelIndex& index) const;
    std::string CallAt(const QModelIndex& index) const;
    void OpenMenu(QPoint place);

    StationModel* m_model;
    QTableView* m_table;
    QLineEdit* m_calls;
    QComboBox* m_within;
    QCheckBox* m_direct;
    QLabel* m_count;
    QPersistentModelIndex m_deleted; // Stood here before it was deleted, the list may still show it;
    int m_deletedRow = -1;           // -1: none.
};

} // namespace ruvenmark
