// The comparison's work with QTreeWidget and, for rows that are not stored, QTreeView.
#include "Stopwatch.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QTreeView>
#include <QTreeWidget>

namespace
{

using namespace peers;

/// Cells that are made up when they are asked for.
class Rows : public QAbstractTableModel
{
public:
    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : kRows; }
    int columnCount(const QModelIndex&) const override { return kColumns; }
    QVariant data(const QModelIndex& at, int role) const override
    {
        return role == Qt::DisplayRole ? QString::asprintf("cell %06d %02d", at.row(), at.column())
                                       : QVariant();
    }
};

void showNow(QAbstractItemView& view)
{
    view.resize(kWidth, kHeight);
    view.setSelectionMode(QAbstractItemView::ExtendedSelection);
    view.show();
    QApplication::processEvents();
}

void fill(QTreeWidget& tree, int count)
{
    tree.setUpdatesEnabled(false);
    for (int i = 0; i < count; ++i)
        new QTreeWidgetItem(&tree, {QString::asprintf("item %06d", i)});
    tree.setUpdatesEnabled(true);
    tree.viewport()->repaint();
}

void timeTree(int count)
{
    const Stopwatch watch("QTreeWidget");
    QTreeWidget tree;
    tree.setUniformRowHeights(true);
    showNow(tree);
    watch.time(
        kInsertTree, kInsertRounds, [&] { tree.clear(); }, [&] { fill(tree, count); });
    watch.time(
        kSelectTree, kSelectRounds, [&] { tree.clearSelection(); },
        [&] {
            tree.selectAll();
            tree.viewport()->repaint();
        });
    watch.time(
        kRepaintTree, kRepaintRounds, [] {}, [&] { tree.viewport()->repaint(); });
}

void timeList()
{
    const Stopwatch watch("QTreeView with a model");
    QTreeView list;
    list.setRootIsDecorated(false);
    list.setUniformRowHeights(true);
    showNow(list);
    Rows rows;
    watch.time(
        kInsertList, kInsertRounds, [&] { list.setModel(nullptr); },
        [&] {
            list.setModel(&rows);
            list.viewport()->repaint();
        });
    watch.time(
        kSelectList, kSelectRounds, [&] { list.clearSelection(); },
        [&] {
            list.selectAll();
            list.viewport()->repaint();
        });
    watch.time(
        kRepaintList, kRepaintRounds, [] {}, [&] { list.viewport()->repaint(); });
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    std::printf("version\tQt %s\n", qVersion());
    timeTree(treeItems(argc, argv));
    timeList();
}
