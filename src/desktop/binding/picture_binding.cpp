#include "desktop/binding/bind.h"
#include "desktop/binding/binding.h"

namespace quorrin {

namespace {

class PictureBinding : public Binding {
  public:
    PictureBinding(PictureView& widget, Picture& control, const OperatorActs& acts)
        : Binding(widget, control, acts), widget_(widget), control_(control) {
        start();
    }

  protected:
    // Not every look is worth a read: the file is read when it was named anew, and a refresh only paints.
    void showValue() override {
        widget_.setNumber(control_.number());
        if (control_.file().empty()) {
            widget_.clear();
        } else if (control_.content()) {
            widget_.setContent(control_.content());
        } else if (fileLoads_ != control_.fileLoads()) {
            widget_.setFile(QString::fromStdString(control_.file()));
        }
        fileLoads_ = control_.fileLoads();
        if (refreshes_ != control_.refreshes()) {
            refreshes_ = control_.refreshes();
            widget_.update();
        }
    }

  private:
    PictureView& widget_;
    Picture& control_;
    std::int64_t fileLoads_ = 0;
    std::int64_t refreshes_ = 0;
};

}  // namespace

void bind(PictureView& widget, Picture& control, const OperatorActs& acts) {
    new PictureBinding(widget, control, acts);
}

}  // namespace quorrin
