#pragma once

#include <QBuffer>
#include <QByteArray>

/// A device that fails after the bytes, before its end.
class BrokenDevice : public QBuffer
{
public:
    explicit BrokenDevice(const QByteArray &bytes)
    {
        setData(bytes);
        open(QIODevice::ReadOnly);
    }

    bool atEnd() const override { return false; }

protected:
    qint64 readData(char *bytes, qint64 most) override
    {
        const qint64 read = QBuffer::readData(bytes, most);
        return read > 0 ? read : -1;
    }
};
