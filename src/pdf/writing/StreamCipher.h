// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <qpdf/Pipeline.hh>

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
class CipherPipeline final : public Pipeline {
  public:
    /// Both must outlive it.
    CipherPipeline(const StreamCipher &cipher, Pipeline &target);

    void write(unsigned char const *data, size_t length) override;
    void finish() override {}
    /// Hands on the rest. To be called once, behind all data.
    void end();

  private:
    void flush();

    Pipeline &m_target;
    std::shared_ptr<QPDFCryptoImpl> m_crypto;
    std::string m_waiting; ///< Of whole blocks, but for the last time.
};

} // namespace folioforge
