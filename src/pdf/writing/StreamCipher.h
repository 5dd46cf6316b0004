// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/writing/BlockPipeline.h"

#include <QByteArray>
#include <QByteArrayView>

#include <memory>
#include <string>
#include <utility>

class QPDF;
class QPDFCryptoImpl;

namespace folioforge {

struct Encryption;

/// An empty document that is encrypted like that, whose parameters others can take over. Throws
/// Error when a password cannot be used.
std::unique_ptr<QPDF> encryptedLike(const Encryption &encryption);

/// Encrypts strings and streams with a document's key of 256 bits, as AESV3 demands (ISO 32000-2,
/// 7.6.3).
class StreamCipher {
  public:
    explicit StreamCipher(std::string key)
        : m_key(std::move(key)) {}

    [[nodiscard]] QByteArray encrypted(QByteArrayView data) const;
    /// Bytes that so many become.
    static qint64 encryptedSize(qint64 size);

  private:
    friend class CipherPipeline;
    std::string m_key;
};

/// Encrypts what comes and hands it on.
class CipherPipeline final : public BlockPipeline {
  public:
    /// Both must outlive it.
    CipherPipeline(const StreamCipher &cipher, Pipeline &target);

    /// Hands on the rest. To be called once, behind all data.
    void end();

  private:
    void takeBlock() override;

    Pipeline &m_target;
    std::shared_ptr<QPDFCryptoImpl> m_crypto;
};

} // namespace folioforge
