// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QIODevice>

#include <cstdint>

namespace tessera {

class ReadableFile;

/// A readable file as a device for Qt's decoders.
class FileDevice final : public QIODevice {
public:
    /// The file is not owned and must outlive the device; `length` is where it ends, even if it
    /// goes on growing.
    FileDevice(ReadableFile& file, std::uint64_t length);

    bool isSequential() const override { return false; }
    qint64 size() const override { return m_length; }
    bool seek(qint64 position) override;

protected:
    qint64 readData(char* into, qint64 maxSize) override;
    qint64 writeData(const char* from, qint64 size) override;

private:
    qint64 readFromPiece(char* into, qint64 maxSize);
    bool fillPiece();

    ReadableFile& m_file;
    qint64 m_length;
    qint64 m_position = 0;
    QByteArray m_piece; ///< of the file, so that a decoder's many small reads cost one call
    qint64 m_pieceStart = 0;
};

} // namespace tessera
