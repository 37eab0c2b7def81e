#include "contract/popup_contract.h"

#include "receiver_ui/popup_rig.h"

namespace vigrel::testing {
namespace {

INSTANTIATE_TYPED_TEST_SUITE_P(X11, PopupContract, cPopupWidgetRig);

}  // namespace
}  // namespace vigrel::testing
