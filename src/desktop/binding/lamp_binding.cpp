#include "desktop/binding/bind.h"
#include "desktop/binding/binding.h"

namespace quorrin {

namespace {

class LampBinding : public Binding {
  public:
    LampBinding(Lamp& widget, Shape& control, const OperatorActs& acts)
        : Binding(widget, control, acts), widget_(widget), control_(control) {
        start();
    }

  protected:
    void showValue() override { widget_.setFill(control_.fill()); }

  private:
    Lamp& widget_;
    Shape& control_;
};

}  // namespace

void bind(Lamp& widget, Shape& control, const OperatorActs& acts) {
    new LampBinding(widget, control, acts);
}

}  // namespace quorrin
