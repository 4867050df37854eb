#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QHash>

/// One parsed HTTP response.
struct HttpResponse
{
    int status = 0;
    QHash<QByteArray, QByteArray> headers; ///< By lower-cased name; the last of a name wins.
    QByteArray body;                       ///< With any chunking taken off.

    bool operator==(const HttpResponse &) const = default;
};

/// Reads one HTTP/1.1 response from bytes that arrive in pieces of any size.
///
/// The result depends only on the bytes, never on how they were split: `parse()`
/// of the whole gives the same as any sequence of `append()` calls. Every byte is
/// looked at once, so a large answer in small pieces costs no more than in one.
/// A plain value without threads or I/O.
class HttpResponseParser final
{
public:
    enum class Result {
        Incomplete, ///< More bytes (or the end of the stream) are needed.
        Complete,   ///< `response()` is valid; further bytes are ignored.
        Failed,     ///< No further bytes can make this a response.
    };

    /// Parses a whole buffer at once. With `isFinal` the stream has ended, which
    /// completes a body of unstated length.
    static Result parse(QByteArrayView bytes, bool isFinal, HttpResponse *response);

    /// Takes the next bytes of the stream. An answer that would need more than
    /// control::kMaxResponseBytes fails.
    Result append(QByteArrayView bytes);

    /// Says that the stream has ended.
    Result finish();

    /// The response so far; whole once a call has returned Complete.
    const HttpResponse &response() const { return m_response; }

private:
    enum class Phase {
        Head,
        NotAResponse, ///< The status line is none; only the end of the stream settles it.
        FixedBody,
        BodyUntilEnd,
        ChunkSize,
        ChunkData,
        Trailer,
        Done,
        Failed,
    };

    Result result() const;
    bool advance();
    bool readHead();
    void readHeaderLine(QByteArrayView line);
    bool readFixedBody();
    bool readChunkSize();
    bool readChunkData();
    bool readTrailerLine();
    qsizetype findLineEnd();

    Phase m_phase = Phase::Head;
    QByteArray m_buffer;
    qsizetype m_position = 0; ///< Start of what the current phase has still to read.
    qsizetype m_searched = 0; ///< No line end starts before this offset.
    bool m_isChunked = false;
    qint64 m_contentLength = -1; ///< -1: not stated.
    qsizetype m_chunkSize = 0;
    HttpResponse m_response;
};
