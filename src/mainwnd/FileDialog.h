// SPDX-License-Identifier: Apache-2.0

#pragma once

class QFileDialog;
class QWidget;

namespace folioforge {

struct FilePanel;

/// A dialog, not shown yet, that lets the user choose what `panel` says; `window` owns it.
QFileDialog *makeFileDialog(QWidget *window, const FilePanel &panel);

} // namespace folioforge
