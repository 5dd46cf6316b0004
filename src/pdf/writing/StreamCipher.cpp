// SPDX-License-Identifier: Apache-2.0

#include "pdf/writing/StreamCipher.h"

#include "pdf/Password.h"
#include "pdf/QpdfErrors.h"

#include <qpdf/Buffer.hh>
#include <qpdf/BufferInputSource.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFCryptoImpl.hh>
#include <qpdf/QPDFCryptoProvider.hh>
#include <qpdf/QPDFWriter.hh>

#include <array>

namespace folioforge {

namespace {

constexpr qsizetype kBlock = QPDFCryptoImpl::rijndael_buf_size;

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
    const auto crypto = QPDFCryptoProvider::getImpl();
    std::array<unsigned char, kBlock> block{};
    crypto->provideRandomData(block.data(), block.size());
    QByteArray bytes(reinterpret_cast<const char *>(block.data()), kBlock);
    const auto padding = static_cast<char>(kBlock - data.size() % kBlock);
    bytes.append(data).append(padding, padding);
    crypto->rijndael_init(true, reinterpret_cast<const unsigned char *>(m_key.data()), m_key.size(),
                          true, block.data());
    for (qsizetype at = kBlock; at < bytes.size(); at += kBlock) {
        auto *place = reinterpret_cast<unsigned char *>(bytes.data() + at);
        crypto->rijndael_process(place, place);
    }
    crypto->rijndael_finalize();
    return bytes;
}

} // namespace folioforge
