// Pages of which one is seen, turned by a row of tabs; or all of them beside one another, without the tabs.
//
// The tabs are a widget of their own, for wherever their owner has room. A page that is turned away is
// hidden, so that what draws only while it is seen rests. Its keys' shortcuts go on working while the pages'
// holder is seen; a shortcut that leads into a page brings the page up. The page stays as it was chosen while
// the holder is closed. Turning a page away that holds the keyboard gives the keyboard to the tabs.
#pragma once

#include <QKeySequence>
#include <QTabBar>
#include <QWidget>
#include <functional>
#include <vector>

#include "console/page_words.h"

class QHBoxLayout;

namespace quorrin {

// Shows that it holds the keyboard by a ring around all of it.
class PageTabs : public QTabBar {
  public:
    PageTabs(const QString& name, const QString& spoken);

  protected:
    void paintEvent(QPaintEvent* event) override;
};

class Pages : public QWidget {
  public:
    Pages(const QString& name, const QString& spoken);

    // The first page that is added is seen first. One widget may be two pages that look at it differently:
    // then `onTurned` tells it. Tip and key are those of its tab.
    void add(QWidget* page, const PageWords& words);
    // Gives the shortcuts below to `holder`, which is seen whichever page is.
    void keepShortcuts(QWidget& holder);
    // Until this object goes, wherever it has been put.
    PageTabs& tabs() { return *tabs_; }
    int page() const { return tabs_->currentIndex(); }
    void turnTo(int page) { tabs_->setCurrentIndex(page); }
    bool together() const { return together_; }
    void setTogether(bool together);

    // Told after a page was turned, and with the first.
    std::function<void(int page)> onTurned;

  private:
    void follow();
    void bringUp(const QWidget& inside);

    PageTabs* tabs_;
    QHBoxLayout* row_;
    std::vector<QWidget*> pages_;
    std::vector<QKeySequence> keys_;
    bool together_ = false;
};

}  // namespace quorrin
