// SPDX-License-Identifier: Apache-2.0

#include "pdf/writing/StreamCipher.h"

#include "pdf/Password.h"
#include "pdf/QpdfErrors.h"

#include <qpdf/Buffer.hh>
#include <qpdf/BufferInputSource.hh>
#include <qpdf/Pl_String.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFCryptoImpl.hh>
#include <qpdf/QPDFCryptoProvider.hh>
#include <qpdf/QPDFWriter.hh>

#include <array>

namespace folioforge {

namespace {

constexpr std::size_t kBlock = QPDFCryptoImpl::rijndael_buf_size;
constexpr std::size_t kPiece = kBlock << 12; // It stays in the processor's cache.

void applyEncryption(QPDFWriter &writer, const Encryption &encryption) {
    const PreparedPasswords passwords = preparedPasswords(encryption);
    const bool allowed = true;
    writer.setR6EncryptionParameters(
        passwords.user.constData(), passwords.owner.constData(), allowed, !encryption.refuseCopy,
        allowed, allowed, allowed, allowed, encryption.refusePrint ? qpdf_r3p_none : qpdf_r3p_full,
        allowed);
}

} // namespace

std::unique_ptr<QPDF> encryptedLike(const Encryption &encryption) {
    QPDF empty;
    makeEmpty(empty);
    QPDFWriter writer(empty);
    writer.setOutputMemory();
    applyEncryption(writer, encryption);
    writer.write();
    const std::shared_ptr<Buffer> bytes = writer.getBufferSharedPointer();
    const std::string file(reinterpret_cast<const char *>(bytes->getBuffer()), bytes->getSize());
    auto document = std::make_unique<QPDF>();
    document->processInputSource(std::make_shared<BufferInputSource>("encryption", file),
                                 preparedPasswords(encryption).user.constData());
    return document;
}

QByteArray StreamCipher::encrypted(QByteArrayView data) const {
    std::string out;
    Pl_String target("encrypted", nullptr, out);
    CipherPipeline pipeline(*this, target);
    pipeline.write(reinterpret_cast<const unsigned char *>(data.data()),
                   static_cast<std::size_t>(data.size()));
    pipeline.end();
    return QByteArray::fromStdString(out);
}

qint64 StreamCipher::encryptedSize(qint64 size) {
    constexpr qint64 kBytes = kBlock;
    return kBytes + (size / kBytes + 1) * kBytes; // In front is a block of chance.
}

CipherPipeline::CipherPipeline(const StreamCipher &cipher, Pipeline &target)
    : BlockPipeline("cipher", kPiece)
    , m_target(target)
    , m_crypto(QPDFCryptoProvider::getImpl()) {
    std::array<unsigned char, kBlock> block{};
    m_crypto->provideRandomData(block.data(), block.size());
    m_target.write(block.data(), block.size());
    m_crypto->rijndael_init(true, reinterpret_cast<const unsigned char *>(cipher.m_key.data()),
                            cipher.m_key.size(), true, block.data());
}

void CipherPipeline::takeBlock() {
    auto *const bytes = reinterpret_cast<unsigned char *>(m_block.data());
    for (std::size_t at = 0; at < m_block.size(); at += kBlock) {
        m_crypto->rijndael_process(bytes + at, bytes + at);
    }
    m_target.write(bytes, m_block.size());
    m_block.clear();
}

void CipherPipeline::end() {
    const std::size_t padding = kBlock - m_block.size() % kBlock;
    m_block.append(padding, static_cast<char>(padding));
    takeBlock();
    m_crypto->rijndael_finalize();
}

} // namespace folioforge
