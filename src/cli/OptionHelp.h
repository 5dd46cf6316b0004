// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QByteArrayView>

#include <vector>

namespace folioforge {

/// What users read of an option; --help and the completions of shells are made of it.
struct OptionHelp {
    QByteArrayView name;
    /// Its value: words such as "never|always", FILE, DIR, or what else is put in; empty where it
    /// takes none. What is in capitals stands for something.
    QByteArrayView value;
    QByteArrayView text; ///< A few words, without a full stop.

    /// The words of the value that are to be typed as they are.
    [[nodiscard]] QByteArrayList words() const;
};

struct HelpSection {
    QByteArrayView title;
    QByteArrayView note; ///< What holds for the whole section; may be empty.
    std::vector<OptionHelp> options;
};

/// Every option, in the order of the help.
const std::vector<HelpSection> &optionHelp();

} // namespace folioforge
