#include "support/fake_report_list.h"

#include "contract/report_list_contract.h"

namespace vigrel::testing {
namespace {

class cFakeReportListRig {
  public:
    cReportList& List() { return m_List; }

  private:
    cFakeReportList m_List;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, ReportListContract, cFakeReportListRig);

}  // namespace
}  // namespace vigrel::testing
