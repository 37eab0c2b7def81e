#pragma once

#include <sys/stat.h>

#include <map>
#include <string>
#include <string_view>

namespace vigrel {

// Where files were found that are spelled otherwise on the disk than in the program, as is a configuration
// that a first start has made. That holds until a name comes into their folder or leaves it, which the
// folder's times tell: one look at them takes the place of a search through all names.
class cFoundSpellings {
  public:
    // The path on the disk; empty where a search has to tell. The path is one of the operating system's.
    std::string Recall(const std::string& spelled) const;
    // NativePath, kept for the next time where the folder itself is spelled as it stands. Throws as that
    // does.
    std::string Search(std::string_view path);

  private:
    struct cFound {
        std::string native;
        struct stat folder;
    };
    std::map<std::string, cFound> m_Found;
};

}  // namespace vigrel
