// Lists in a window: their lines come from the control when they are drawn, however many there are.
#include <QListView>

#include "desktop/window_bench.h"

namespace quorrin {
namespace {

class ListBinding : public WindowBench {};

TEST_F(ListBinding, AListShowsItsLines) {
    auto& list = put<QListView>("lstClients");
    form.lstClients.add("127.0.0.2", 1);
    form.lstClients.add("127.0.0.3", 2);
    form.lstClients.remove(0);
    ASSERT_EQ(list.model()->rowCount(), 1);
    EXPECT_EQ(list.model()->index(0, 0).data().toString(), "127.0.0.3");
    form.lstClients.setLines({});
    EXPECT_EQ(list.model()->rowCount(), 0);
}

TEST_F(ListBinding, AListMarksAndShowsTheSelectedLine) {
    auto& list = put<QListView>("lstClients");
    list.setFixedHeight(100);
    settle();
    form.lstClients.setLines(std::vector<std::string>(5000, "46346_0.375_1.jpg"));
    form.lstClients.select(4000);
    settle();
    const QModelIndex line = list.model()->index(4000, 0);
    EXPECT_TRUE(list.selectionModel()->isSelected(line));
    const QRect place = list.visualRect(line);
    EXPECT_GE(place.top(), 0);
    EXPECT_LE(place.bottom(), list.viewport()->height());
    form.lstClients.select(-1);
    EXPECT_FALSE(list.selectionModel()->hasSelection());
}

TEST_F(ListBinding, AListsSelectionIsTheProgramsAlone) {
    auto& list = put<QListView>("lstClients");
    form.lstClients.setLines({"a", "b"});
    form.lstClients.select(0);
    settle();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualRect(list.model()->index(1, 0)).center());
    QTest::keyClick(&list, Qt::Key_Down);
    settle();
    EXPECT_TRUE(list.selectionModel()->isSelected(list.model()->index(0, 0)));
    EXPECT_FALSE(list.selectionModel()->isSelected(list.model()->index(1, 0)));
}

TEST_F(ListBinding, AListThatOnlySelectsKeepsItsLines) {
    auto& list = put<QListView>("lstClients");
    form.lstClients.setLines({"a", "b"});
    int resets = 0;
    QObject::connect(list.model(), &QAbstractItemModel::modelReset, &list, [&resets] { ++resets; });
    form.lstClients.select(1);
    form.lstClients.setEnabled(false);
    EXPECT_EQ(resets, 0);
    form.lstClients.setLines({"c"});
    EXPECT_EQ(resets, 1);
}

}  // namespace
}  // namespace quorrin
