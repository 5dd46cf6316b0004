// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QLineEdit>

namespace folioforge {

/// A field whose text can be read and copied, and changed by the program alone. Qt lets screen
/// readers write into a line edit that is read-only.
class ReadOnlyField : public QLineEdit {
    Q_OBJECT

  public:
    explicit ReadOnlyField(QWidget *parent = nullptr);
};

} // namespace folioforge
