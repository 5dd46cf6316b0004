// SPDX-License-Identifier: Apache-2.0

#pragma once

namespace folioforge {

/// What each program calls before anything else.
///
/// Puts /dev/null where the caller closed standard input, output or error, so that no file opened
/// later takes that place and gets what is meant for it; reading and writing there still fail.
/// Makes a write that a limit of file sizes forbids fail (EFBIG), instead of ending the process.
void prepareProcess();

/// Forbids core dumps of this process, whose memory holds passwords.
void forbidCoreDumps();

} // namespace folioforge
