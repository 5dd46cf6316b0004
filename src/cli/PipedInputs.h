// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/FileDescriptor.h"
#include "files/ReadableLinks.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace folioforge {

/// Makes files of what comes through pipes, since a source is read more than once: each is kept in
/// a file without a name, to which a link in a temporary folder leads.
class PipedInputs {
  public:
    /// `type` is the extension that stands for the kind of standard input; where it is empty its
    /// bytes tell.
    PipedInputs(QByteArray type, ReadableLinks &links)
        : m_type(std::move(type))
        , m_links(links) {}

    /// Whether `path` is "-", for standard input, or a pipe, as a shell's "<(command)" is.
    static bool isPiped(const QByteArray &path);

    /// The path of a file with all that comes from `path`, until this object goes. Throws Error
    /// where it cannot be read or kept.
    QString fileOf(const QByteArray &path);

  private:
    QByteArray m_type;
    ReadableLinks &m_links;
    std::vector<FileDescriptor> m_files;
};

} // namespace folioforge
