#pragma once

#include <string>

namespace folioforge {

/// Keeps the path of an unfinished output file where a signal handler finds it. Only file systems
/// without nameless files need it; elsewhere nothing is left behind however the program ends.
class PartFile {
  public:
    explicit PartFile(std::string path);
    ~PartFile();
    PartFile(const PartFile &) = delete;
    PartFile &operator=(const PartFile &) = delete;

    [[nodiscard]] const std::string &path() const { return m_path; }

  private:
    std::string m_path;
};

/// Removes every unfinished output file of this process. Safe to call in a signal handler.
void removePartFiles() noexcept;

} // namespace folioforge
