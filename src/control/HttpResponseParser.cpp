#include "HttpResponseParser.h"

#include "ControlProtocol.h"

#include <QList>

#include <algorithm>
#include <limits>

namespace {

constexpr QByteArrayView kLineEnd{"\r\n"};
constexpr QByteArrayView kHeadEnd{"\r\n\r\n"};
constexpr QByteArrayView kContentLength{"content-length:"};
constexpr QByteArrayView kTransferEncoding{"transfer-encoding:"};

bool isHexDigit(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

/// The size named by a chunk-size line; -1 when it names none.
qsizetype chunkSizeOf(QByteArrayView line)
{
    const qsizetype extension = line.indexOf(';');
    const QByteArrayView digits = (extension < 0 ? line : line.first(extension)).trimmed();
    // Checked by hand because the conversion would also take signs and "0x".
    if (digits.isEmpty() || !std::all_of(digits.begin(), digits.end(), isHexDigit)) {
        return -1;
    }
    bool ok = false;
    const qulonglong size = digits.toByteArray().toULongLong(&ok, 16);
    constexpr qulonglong kMaxChunk = std::numeric_limits<qint32>::max();
    return ok && size <= kMaxChunk ? static_cast<qsizetype>(size) : -1;
}

} // namespace

HttpResponseParser::Result HttpResponseParser::parse(QByteArrayView bytes, bool isFinal,
                                                     HttpResponse *response)
{
    HttpResponseParser parser;
    Result result = parser.append(bytes);
    if (isFinal) {
        result = parser.finish();
    }
    if (result == Result::Complete) {
        *response = parser.response();
    }
    return result;
}

HttpResponseParser::Result HttpResponseParser::append(QByteArrayView bytes)
{
    if (result() != Result::Incomplete) {
        return result();
    }
    const qsizetype room = control::kMaxResponseBytes - m_buffer.size();
    m_buffer.append(bytes.first(std::min(room, bytes.size())));
    while (advance()) {
    }
    if (result() == Result::Incomplete && bytes.size() > room) {
        m_phase = Phase::Failed;
    }
    return result();
}

HttpResponseParser::Result HttpResponseParser::finish()
{
    if (m_phase == Phase::BodyUntilEnd) {
        m_response.body = m_buffer.sliced(m_position);
        m_phase = Phase::Done;
    }
    return result();
}

HttpResponseParser::Result HttpResponseParser::result() const
{
    switch (m_phase) {
    case Phase::Done:
        return Result::Complete;
    case Phase::Failed:
        return Result::Failed;
    default:
        return Result::Incomplete;
    }
}

/// Reads one more part of the response; false when the bytes do not suffice or
/// nothing is left to read.
bool HttpResponseParser::advance()
{
    switch (m_phase) {
    case Phase::Head:
        return readHead();
    case Phase::FixedBody:
        return readFixedBody();
    case Phase::ChunkSize:
        return readChunkSize();
    case Phase::ChunkData:
        return readChunkData();
    case Phase::Trailer:
        return readTrailerLine();
    case Phase::NotAResponse:
    case Phase::BodyUntilEnd:
    case Phase::Done:
    case Phase::Failed:
        break;
    }
    return false;
}

bool HttpResponseParser::readHead()
{
    const qsizetype end = QByteArrayView(m_buffer).indexOf(kHeadEnd, m_searched);
    if (end < 0) {
        // The last three bytes may begin the blank line.
        m_searched = std::max<qsizetype>(0, m_buffer.size() - kHeadEnd.size() + 1);
        return false;
    }
    const QByteArrayView head = QByteArrayView(m_buffer).first(end);
    qsizetype lineEnd = head.indexOf(kLineEnd);
    const QByteArrayView statusLine = lineEnd < 0 ? head : head.first(lineEnd);
    const QList<QByteArray> parts = statusLine.toByteArray().split(' ');
    bool ok = false;
    const int status = parts.size() < 2 ? 0 : parts.at(1).toInt(&ok);
    if (!ok) {
        m_phase = Phase::NotAResponse;
        return false;
    }
    m_response.status = status;
    while (lineEnd >= 0) {
        const qsizetype start = lineEnd + kLineEnd.size();
        lineEnd = head.indexOf(kLineEnd, start);
        readHeaderLine(head.sliced(start, (lineEnd < 0 ? end : lineEnd) - start));
    }

    m_position = end + kHeadEnd.size();
    m_searched = m_position;
    if (m_isChunked) {
        m_phase = Phase::ChunkSize;
    } else {
        m_phase = m_contentLength < 0 ? Phase::BodyUntilEnd : Phase::FixedBody;
    }
    return true;
}

void HttpResponseParser::readHeaderLine(QByteArrayView line)
{
    const QByteArray text = line.trimmed().toByteArray();
    const QByteArray lower = text.toLower();
    if (lower.startsWith(kContentLength)) {
        bool ok = false;
        m_contentLength = lower.sliced(kContentLength.size()).trimmed().toLongLong(&ok);
        if (!ok || m_contentLength < 0) {
            m_contentLength = -1;
        }
    } else if (lower.startsWith(kTransferEncoding) && lower.contains("chunked")) {
        m_isChunked = true;
    }
    const qsizetype colon = text.indexOf(':');
    if (colon >= 0) {
        m_response.headers.insert(lower.first(colon).trimmed(), text.sliced(colon + 1).trimmed());
    }
}

bool HttpResponseParser::readFixedBody()
{
    if (m_buffer.size() - m_position < m_contentLength) {
        return false;
    }
    m_response.body = m_buffer.sliced(m_position, static_cast<qsizetype>(m_contentLength));
    m_phase = Phase::Done;
    return false;
}

bool HttpResponseParser::readChunkSize()
{
    const qsizetype end = findLineEnd();
    if (end < 0) {
        return false;
    }
    m_chunkSize = chunkSizeOf(QByteArrayView(m_buffer).sliced(m_position, end - m_position));
    if (m_chunkSize < 0) {
        m_phase = Phase::Failed;
        return false;
    }
    m_position = end + kLineEnd.size();
    m_searched = m_position;
    m_phase = m_chunkSize == 0 ? Phase::Trailer : Phase::ChunkData;
    return true;
}

bool HttpResponseParser::readChunkData()
{
    if (m_buffer.size() - m_position < m_chunkSize + kLineEnd.size()) {
        return false;
    }
    const QByteArrayView data = QByteArrayView(m_buffer).sliced(m_position);
    if (!data.sliced(m_chunkSize).startsWith(kLineEnd)) {
        m_phase = Phase::Failed;
        return false;
    }
    m_response.body.append(data.first(m_chunkSize));
    m_position += m_chunkSize + kLineEnd.size();
    m_searched = m_position;
    m_phase = Phase::ChunkSize;
    return true;
}

bool HttpResponseParser::readTrailerLine()
{
    const qsizetype end = findLineEnd();
    if (end < 0) {
        return false;
    }
    if (end == m_position) {
        m_phase = Phase::Done;
        return false;
    }
    m_position = end + kLineEnd.size();
    m_searched = m_position;
    return true;
}

/// Offset of the line end at or after the position; -1 when it has not come yet.
qsizetype HttpResponseParser::findLineEnd()
{
    const qsizetype end = QByteArrayView(m_buffer).indexOf(kLineEnd, m_searched);
    if (end < 0) {
        // The last byte may be the carriage return.
        m_searched = std::max(m_position, m_buffer.size() - 1);
    }
    return end;
}
