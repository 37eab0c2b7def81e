#include "support/fake_files.h"

#include "contract/files_contract.h"

namespace vigrel::testing {
namespace {

class cFakeFilesRig {
  public:
    cFakeFilesRig() { m_Files.PutFolder(Folder()); }
    cFiles& Files() { return m_Files; }
    std::string Folder() const { return "C:\\App\\"; }

  private:
    cFakeFiles m_Files;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, FilesContract, cFakeFilesRig);

}  // namespace
}  // namespace vigrel::testing
