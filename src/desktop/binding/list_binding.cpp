#include <QAbstractListModel>
#include <QItemSelectionModel>

#include "desktop/binding/bind.h"
#include "desktop/binding/binding.h"

namespace quorrin {

namespace {

// The control's lines, asked for when they are drawn: a list of 50,000 costs no more than the part that is
// seen.
class ListLines : public QAbstractListModel {
  public:
    ListLines(const ListBox& control, QObject* parent) : QAbstractListModel(parent), control_(control) {}

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : count_; }

    // While an operator's deed is on its way the control may be ahead of what is shown.
    QVariant data(const QModelIndex& index, int role) const override {
        const auto line = static_cast<std::size_t>(index.row());
        if (role != Qt::DisplayRole || line >= control_.count()) return {};
        return QString::fromStdString(control_.line(line));
    }

    void follow() {
        if (revision_ == control_.revision()) return;
        revision_ = control_.revision();
        beginResetModel();
        count_ = static_cast<int>(control_.count());
        endResetModel();
    }

  private:
    const ListBox& control_;
    std::int64_t revision_ = 0;
    int count_ = 0;
};

class ListBinding : public Binding {
  public:
    ListBinding(QListView& widget, ListBox& control, const OperatorActs& acts)
        : Binding(widget, control, acts), widget_(widget), control_(control), lines_(control, this) {
        // The program selects, the operator looks.
        widget.setSelectionMode(QAbstractItemView::NoSelection);
        widget.setEditTriggers(QAbstractItemView::NoEditTriggers);
        widget.setUniformItemSizes(true);
        widget.setModel(&lines_);
        start();
    }

  protected:
    void showValue() override {
        lines_.follow();
        QItemSelectionModel& selection = *widget_.selectionModel();
        const QModelIndex wanted = lines_.index(control_.selected());
        if (selection.isSelected(wanted) || (!wanted.isValid() && !selection.hasSelection())) return;
        selection.select(wanted, QItemSelectionModel::ClearAndSelect);
        if (wanted.isValid()) widget_.scrollTo(wanted);
    }

  private:
    QListView& widget_;
    ListBox& control_;
    ListLines lines_;
};

}  // namespace

void bind(QListView& widget, ListBox& control, const OperatorActs& acts) {
    new ListBinding(widget, control, acts);
}

}  // namespace quorrin
