#include "HttpResponseParser.h"

#include <QByteArrayView>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

/// The parser must survive any bytes and must not care how they were split. The first
/// byte of the input chooses the size of the pieces.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0) {
        return 0;
    }
    const qsizetype pieceSize = 1 + data[0] % 16;
    const QByteArrayView bytes(data + 1, static_cast<qsizetype>(size - 1));

    HttpResponse whole;
    const HttpResponseParser::Result open = HttpResponseParser::parse(bytes, false, &whole);
    const HttpResponseParser::Result atEnd = HttpResponseParser::parse(bytes, true, &whole);

    HttpResponseParser parser;
    HttpResponseParser::Result result = parser.append({});
    for (qsizetype from = 0; from < bytes.size(); from += pieceSize) {
        result = parser.append(bytes.sliced(from, std::min(pieceSize, bytes.size() - from)));
    }
    const bool isSame =
        result == open && parser.finish() == atEnd &&
        (atEnd != HttpResponseParser::Result::Complete || parser.response() == whole);
    if (!isSame) {
        std::abort();
    }
    return 0;
}
