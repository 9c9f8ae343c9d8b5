// A site, scenario or picture file that cannot be used; the text names the file, the place and the reason.
#pragma once

#include <stdexcept>
#include <string>

namespace quorrin {

class SiteError : public std::runtime_error {
  public:
    explicit SiteError(const std::string& what) : std::runtime_error(what) {}
};

}  // namespace quorrin
