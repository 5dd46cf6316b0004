// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "cli/Arguments.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QByteArrayView>

#include <functional>

namespace folioforge {

/// An option with its effect; one that takes no value is called with an empty one.
struct Option {
    QByteArrayView name;
    enum Kind { Switch, Valued } kind;
    std::function<void(Arguments &, const QByteArray &)> apply;
};

/// Whether `argument` is an option of the table, alone or with a value behind "=".
bool isOption(const QByteArray &argument);

/// The name of every option.
QByteArrayList optionNames();

/// The option called `name`, which begins with dashes. Throws ArgumentFault where there is none,
/// with the one that is probably meant.
const Option &findOption(const QByteArray &name);

} // namespace folioforge
