// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "cli/Completions.h"
#include "cli/Inputs.h"
#include "convert/ConversionOptions.h"
#include "filelist/Orders.h"
#include "pdf/archive/ArchiveLevel.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <map>
#include <optional>
#include <span>
#include <variant>
#include <vector>

namespace folioforge {

enum class ProgressMode { Auto, Always, Never };

/// What the program is asked to do.
enum class Request { Convert, ShowVersion, ShowHelp, ShowCompletion };

/// A file that holds the names of inputs; "-" for standard input.
struct NameList {
    QByteArray file;
    std::size_t at = 0; ///< Before which of the inputs that are arguments its own stand.
};

/// What the options of the readable layout say; nothing where they are not given.
struct TextArguments {
    bool isReadable = false;
    QStringList families;
    std::optional<double> fontSize; ///< Points.
    std::optional<double> lineSpacing;
    std::optional<double> tabWidth;
    std::optional<QString> header;
    std::optional<QString> footer;
};

/// What the options of documents for archives say.
struct ArchiveArguments {
    std::optional<ArchiveLevel> level;
    bool fallback = false;
    std::optional<QByteArray> inkProfileFile;
    bool embedSources = false;
};

/// The arguments of one call, read but not checked.
struct Arguments {
    Request request = Request::Convert;
    Shell shell = Shell::Bash; ///< Whose completion is shown.
    ConversionOptions options; ///< Without the passwords, which no argument holds.
    /// Files whose first line is a password; "-" for standard input.
    std::optional<QByteArray> userPasswordFile;
    std::optional<QByteArray> ownerPasswordFile;
    std::optional<QByteArray> inputPasswordFile; ///< Its lines open encrypted inputs.
    std::optional<QByteArray> altFile;           ///< Its lines describe pictures.
    std::optional<QByteArray> bookmarkTitleFile; ///< A line for each input, in their order.
    QStringList bookmarkTitles;                  ///< Those lines, once they are read.
    QStringList rounded; ///< Lengths that are not what was asked for, in words.
    TextArguments text;
    ArchiveArguments archive;
    std::optional<SortOrder> sort; ///< Nothing: as given.
    bool toStandardOutput = false; ///< The merged PDF; `options` then name no place for it.
    ProgressMode progress = ProgressMode::Auto;
    int jobs = 1;                    ///< How many PDFs are made at once.
    QString manifest;                ///< The file of --manifest; empty for none.
    bool mayReplaceManifest = false; ///< --overwrite allows it.
    QStringList given;               ///< The options as they were given.
    bool json = false;
    bool quiet = false;
    bool strict = false;                           ///< A warning counts as a failure.
    std::vector<QByteArray> inputs;                ///< Paths in the system's own bytes.
    std::map<std::size_t, PageChoice> pageChoices; ///< By the positions of their inputs.
    std::vector<NameList> nameLists;
    bool listsEndInNull = false; ///< Each name of a list, instead of a line's end.
    InputTaking taking;
    QByteArray inputType; ///< The extension that stands for the kind of standard input.
};

/// A fault in the arguments, as a sentence without a full stop.
struct UsageError {
    QString message;
};

/// Reads the arguments behind the program's name.
std::variant<Arguments, UsageError> parseArguments(std::span<const QByteArray> arguments);

/// Throws ArgumentFault when standard input is asked for twice. Both passwords are lines of one
/// reading.
void requireOneReading(const Arguments &arguments);

/// Puts the names of `nameLists` into `inputs`. Throws ArgumentFault when a list cannot be read, or
/// names standard input as a further input of it.
void readNameLists(Arguments &arguments);

/// What is wrong with the settings, in the words of the options; nothing where they are right.
std::optional<QString> settingsFault(const Arguments &arguments);

/// Makes the folder of --output-folder where it is missing. Throws ArgumentFault where it cannot be
/// made, and where no PDF can be written into the folder of the output.
void prepareOutputFolder(const ConversionOptions &options);

/// That the merged PDF cannot be written, as its name is taken.
QString nameTakenFault(const ConversionOptions &options);

/// The lines of the file of --bookmark-titles. Throws ArgumentFault when it cannot be read.
QStringList readBookmarkTitles(const Arguments &arguments);

/// The text of --help.
QByteArray helpText();

/// Puts the passwords that the arguments or the environment name into `security`: the first line of
/// a file or of standard input, else FOLIOFORGE_USER_PASSWORD and FOLIOFORGE_OWNER_PASSWORD where
/// they are set. Standard input is read line by line, the user password first. Throws ArgumentFault
/// when a file cannot be read, a variable is empty, a password is not valid UTF-8, or something is
/// to be refused and there is no owner password.
void readPasswords(const Arguments &arguments, SecuritySettings &security);

/// The lines of the file of --input-password-file; null without it. Throws ArgumentFault when the
/// file cannot be read or is not valid UTF-8.
InputPasswords readInputPasswords(const Arguments &arguments);

} // namespace folioforge
