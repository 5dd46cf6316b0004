// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <stop_token>

namespace folioforge {

/// Makes Qt read file names as UTF-8 in every locale. Must be called before the first use of Qt.
void useUtf8FileNames();

/// Lets the C library name what goes wrong in English, as all else is said, in every locale. Must
/// be called after the application object is made, which asks for the language of the user.
void keepMessagesEnglish();

/// Keeps Qt's own messages, which are for developers, from standard error, save for the last one of
/// a program that Qt ends.
void silenceQt();

/// Asked to stop when the processor time that the system grants (RLIMIT_CPU) is nearly used up,
/// after prepareForSignals().
std::stop_token outOfProcessorTime();

/// On SIGINT, SIGTERM and SIGHUP removes unfinished files and ends the program by that signal.
/// Ignores SIGPIPE, so that a closed standard output does not end it.
void prepareForSignals();

} // namespace folioforge
