// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <memory>
#include <string>
#include <utility>

class QPDF;

namespace folioforge {

struct Encryption;

/// An empty document that is encrypted like that, whose parameters others can take over. Throws
/// Error when a password cannot be used.
std::unique_ptr<QPDF> encryptedLike(const Encryption &encryption);

/// Encrypts strings and streams with a document's key of 256 bits, as AESV3 demands (ISO
/// 32000-2, 7.6.3).
class StreamCipher {
  public:
    explicit StreamCipher(std::string key)
        : m_key(std::move(key)) {}

    [[nodiscard]] QByteArray encrypted(QByteArrayView data) const;

  private:
    std::string m_key;
};

} // namespace folioforge
