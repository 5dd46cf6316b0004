#pragma once

namespace folioforge {

/// Whether a finished document is flushed to the disk before it gets its name.
enum class Flush { Always, Never };

} // namespace folioforge
