#include "desktop/panes/message_panes.h"

#include "core/main_window.h"
#include "desktop/named_control.h"
#include "desktop/panes/row_list_view.h"
#include "desktop/panes/row_model.h"
#include "desktop/tree/tree_model.h"
#include "desktop/tree/tree_view.h"
#include "messaging/message_boxes.h"
#include "ui/message_popups.h"
#include "ui/station_tree_commands.h"

#include <QHeaderView>
#include <QStackedWidget>

#include <array>
#include <utility>

namespace ruvenmark {

namespace {

constexpr std::array kColumnWidths = {21, 13, 14, 28, 30, 10}; // Characters.
constexpr int kTextColumn = static_cast<int>(message_column::kText);

} // namespace

MessagePanes::MessagePanes(MainWindow& main, const IconSet& icons, Callbacks callbacks, QStackedWidget& left,
                           QStackedWidget& right)
    : QObject(&right), m_main(main), m_icons(icons), m_callbacks(std::move(callbacks)),
      m_boxModel(new TreeModel(main.messages.tvMessageBoxes, icons, this)),
      m_boxes(new TreeView(main.messages.tvMessageBoxes, *m_boxModel, &left)),
      m_inbox(MakeList(main.messages.lvMessageList, "lvMessageList", QStringLiteral("Inbox"),
                       {QStringLiteral("From"), QStringLiteral("To"), QStringLiteral("Path"),
                        QStringLiteral("Received"), QStringLiteral("Message"), QStringLiteral("Number")},
                       right)),
      m_sent(MakeList(main.messages.lvSentList, "lvSentList", QStringLiteral("Sent items"),
                      {QStringLiteral("To"), QStringLiteral("From"), QStringLiteral("Via"), QStringLiteral("Sent"),
                       QStringLiteral("Message"), QStringLiteral("Number")},
                      right))
{
    NameControl(*m_boxes, "tvMessageBoxes", QStringLiteral("Message boxes"));
    left.addWidget(m_boxes);
    ConnectBoxes();
    connect(m_inbox, &RowListView::OpenWanted, this, [this] { m_callbacks.run(MenuEntry::mnuMsgOpen); });
    connect(m_inbox, &RowListView::ReplyWanted, this, [this] { m_callbacks.run(MenuEntry::mnuMsgReply); });
    connect(m_inbox, &RowListView::Left, this, [this] { lvMessageList_LostFocus(m_main); });
}

QWidget* MessagePanes::Boxes() const
{
    return m_boxes;
}

QWidget* MessagePanes::List(RightView view) const
{
    if (view == RightView::Inbox)
        return m_inbox;
    return view == RightView::Sent ? m_sent : nullptr;
}

RowListView* MessagePanes::MakeList(RowList& list, const char* name, const QString& label, const QStringList& titles,
                                    QStackedWidget& right)
{
    auto* view = new RowListView(list, *new RowModel(list, m_icons, titles, this), &right);
    NameControl(*view, name, label);
    for (int column = 0; column < titles.size(); ++column)
        view->setColumnWidth(column,
                             kColumnWidths[static_cast<std::size_t>(column)] * view->fontMetrics().averageCharWidth());
    view->SetMainColumn(kTextColumn);
    right.addWidget(view);
    connect(view, &RowListView::MenuWanted, this,
            [this](QPoint place) { m_callbacks.popUp(place, MenuItems(m_main, Menu::mnuMsgPopup)); });
    connect(view, &RowListView::DeleteWanted, this, [this] { m_callbacks.run(MenuEntry::mnuMsgDelete); });
    return view;
}

void MessagePanes::ConnectBoxes()
{
    const auto expand = [this] { m_boxes->expand(m_boxModel->index(0, 0)); };
    connect(m_boxModel, &QAbstractItemModel::rowsInserted, this, expand);
    expand();
    const auto choose = [this](const QModelIndex& index) {
        if (TreeNode* node = m_boxModel->NodeAt(index))
            tvMessageBoxes_NodeClick(m_main, *node);
    };
    connect(m_boxes, &TreeView::clicked, this, choose);
    // By key; what the logic selects is no choice of the operator's.
    connect(m_boxes->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this, choose](const QModelIndex& current) {
                if (m_boxes->hasFocus())
                    choose(current);
            });
    connect(m_boxes, &TreeView::MenuWanted, this, &MessagePanes::ShowBoxMenu);
}

void MessagePanes::ShowBoxMenu(TreeNode* node, QPoint place)
{
    const auto items = tvMessageBoxes_MouseUp(m_main, kRightButton, node);
    if (!items.empty())
        m_callbacks.popUp(place, items);
}

} // namespace ruvenmark
