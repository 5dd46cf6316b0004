#pragma once

#include <QString>

#include <cstdio>
#include <optional>

#include <qpdf/Pipeline.hh>

#include "error/Error.h"

namespace folioforge {

/// The compressed copy while it is written: a new file that its owner alone can read. Unless
/// finished it is gone with this object.
class TemporaryCopy {
  public:
    /// Creates folder/NAME, NAME being the last component of `path`, or with a number behind the
    /// name, "(1).pdf" and upwards, where that is taken. Throws Error.
    TemporaryCopy(const QString &folder, const QString &path);
    ~TemporaryCopy();
    TemporaryCopy(const TemporaryCopy &) = delete;
    TemporaryCopy &operator=(const TemporaryCopy &) = delete;

    [[nodiscard]] const QString &path() const { return m_path; }
    /// Where the document's bytes go. libqpdf also writes while it unwinds, where throwing would
    /// end the program: a failure is kept for throwFailure().
    [[nodiscard]] Pipeline &pipeline() { return m_pipeline; }
    void throwFailure() const;
    /// Bytes written so far.
    [[nodiscard]] qint64 size() const { return m_size; }
    /// Throws the content away and takes that of the file at `source`. Throws Error.
    void becomeCopyOf(const QString &source);
    /// Brings all bytes to the file, which then stays. Throws Error.
    void finish();

  private:
    class Sink : public Pipeline {
      public:
        explicit Sink(TemporaryCopy &copy)
            : Pipeline("temporary copy", nullptr)
            , m_copy(copy) {}
        void write(const unsigned char *data, std::size_t size) override;
        void finish() override {}

      private:
        TemporaryCopy &m_copy;
    };

    bool create(const QString &path);
    void fail();

    QString m_path;
    std::FILE *m_file = nullptr;
    qint64 m_size = 0;
    bool m_finished = false;
    std::optional<QString> m_failure;
    Sink m_pipeline;
};

} // namespace folioforge
