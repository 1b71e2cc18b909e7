#include "platform/x11/web/SoupHttpClient.h"

#include <array>
#include <cstddef>
#include <utility>

#include <fmt/format.h>

#include "platform/x11/GlibHandles.h"

namespace quorvel::x11 {

namespace {

constexpr guint silence = 30; // seconds
constexpr std::size_t longestDocument = std::size_t{1} << 20U;

struct ObjectUnref {
    void operator()(void* object) const { g_object_unref(object); }
};

// One document on its way. GLib calls back exactly once for everything that was begun, also after a cancellation; so a
// request lives until its last callback and belongs to that.
struct Request {
    std::unique_ptr<GCancellable, ObjectUnref> cancellable{g_cancellable_new()};
    std::unique_ptr<SoupMessage, ObjectUnref> message;
    std::unique_ptr<GInputStream, ObjectUnref> stream;
    std::function<void(HttpClient::Answer)> completion;
    std::string refusal; // why it is not even sent
    std::string document;
    std::array<char, 16384> block{};
};

std::unique_ptr<Request> owned(gpointer data)
{
    return std::unique_ptr<Request>(static_cast<Request*>(data));
}

bool isCancelled(const Request& request)
{
    return g_cancellable_is_cancelled(request.cancellable.get()) != FALSE;
}

void finish(const Request& request, HttpClient::Answer answer)
{
    if (!isCancelled(request)) {
        request.completion(std::move(answer));
    }
}

void readOn(std::unique_ptr<Request> request);

void onRead(GObject* source, GAsyncResult* result, gpointer data)
{
    auto request = owned(data);
    GError* problem = nullptr;
    const gssize count = g_input_stream_read_finish(G_INPUT_STREAM(source), result, &problem);
    if (const GlibError error{problem}) {
        finish(*request, std::unexpected(std::string(error->message)));
        return;
    }
    if (count == 0) {
        finish(*request, std::move(request->document));
        return;
    }
    request->document.append(request->block.data(), static_cast<std::size_t>(count));
    if (request->document.size() > longestDocument) {
        finish(*request, std::unexpected(std::string("the document is too long")));
        return;
    }
    readOn(std::move(request));
}

void readOn(std::unique_ptr<Request> request)
{
    Request& reading = *request;
    g_input_stream_read_async(reading.stream.get(), reading.block.data(), reading.block.size(), G_PRIORITY_DEFAULT,
                              reading.cancellable.get(), onRead, request.release());
}

// The end of a sentence about a server that has not proved who it is.
std::string distrust(GTlsCertificateFlags errors)
{
    constexpr std::pair<unsigned, const char*> reasons[] = {
        {G_TLS_CERTIFICATE_REVOKED, "it has been revoked"},
        {G_TLS_CERTIFICATE_UNKNOWN_CA, "no authority that this system trusts vouches for it"},
        {G_TLS_CERTIFICATE_BAD_IDENTITY, "it belongs to another server"},
        {G_TLS_CERTIFICATE_EXPIRED, "it has expired"},
        {G_TLS_CERTIFICATE_NOT_ACTIVATED, "it is not valid yet"},
    };
    for (const auto& [error, reason] : reasons) {
        if ((errors & error) != 0) {
            return fmt::format("the server's certificate cannot be trusted: {}", reason);
        }
    }
    return "the server's certificate cannot be trusted";
}

std::string reasonOf(const GError& error, SoupMessage& message)
{
    return g_error_matches(&error, G_TLS_ERROR, G_TLS_ERROR_BAD_CERTIFICATE) != FALSE
               ? distrust(soup_message_get_tls_peer_certificate_errors(&message))
               : error.message;
}

void onSent(GObject* source, GAsyncResult* result, gpointer data)
{
    auto request = owned(data);
    GError* problem = nullptr;
    request->stream.reset(soup_session_send_finish(SOUP_SESSION(source), result, &problem));
    if (const GlibError error{problem}) {
        finish(*request, std::unexpected(reasonOf(*error, *request->message)));
        return;
    }
    const auto status = soup_message_get_status(request->message.get());
    if (status != SOUP_STATUS_OK) {
        finish(*request, std::unexpected(fmt::format("the server answered {} {}", static_cast<int>(status),
                                                     soup_message_get_reason_phrase(request->message.get()))));
        return;
    }
    readOn(std::move(request));
}

gboolean onRefused(gpointer data)
{
    const auto request = owned(data);
    finish(*request, std::unexpected(request->refusal));
    return G_SOURCE_REMOVE;
}

} // namespace

SoupHttpClient::SoupHttpClient(const std::filesystem::path& authorities)
    : session(soup_session_new_with_options("timeout", silence, "user-agent", "Quorvel", nullptr))
{
    if (!authorities.empty()) {
        trustOnly(authorities);
    }
}

void SoupHttpClient::trustOnly(const std::filesystem::path& authorities)
{
    GError* failure = nullptr;
    const std::unique_ptr<GTlsDatabase, ObjectUnref> database(g_tls_file_database_new(authorities.c_str(), &failure));
    if (const GlibError error{failure}) {
        problem = fmt::format("the certificate authorities cannot be read: {}", error->message);
        return;
    }
    soup_session_set_tls_database(session.get(), database.get());
}

Subscription SoupHttpClient::get(const std::string& address, std::function<void(Answer)> completion)
{
    auto request = std::make_unique<Request>();
    request->completion = std::move(completion);
    request->message.reset(soup_message_new(SOUP_METHOD_GET, address.c_str()));
    request->refusal = request->message ? problem : "its address is malformed";
    auto* const cancellable = G_CANCELLABLE(g_object_ref(request->cancellable.get()));
    Subscription subscription([cancellable] {
        g_cancellable_cancel(cancellable);
        g_object_unref(cancellable);
    });
    if (!request->refusal.empty()) {
        g_idle_add(onRefused, request.release());
        return subscription;
    }
    SoupMessage* const message = request->message.get();
    soup_session_send_async(session.get(), message, G_PRIORITY_DEFAULT, cancellable, onSent, request.release());
    return subscription;
}

} // namespace quorvel::x11
