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

void onSent(GObject* source, GAsyncResult* result, gpointer data)
{
    auto request = owned(data);
    GError* problem = nullptr;
    request->stream.reset(soup_session_send_finish(SOUP_SESSION(source), result, &problem));
    if (const GlibError error{problem}) {
        finish(*request, std::unexpected(std::string(error->message)));
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

gboolean onMalformedAddress(gpointer data)
{
    const auto request = owned(data);
    finish(*request, std::unexpected(std::string("its address is malformed")));
    return G_SOURCE_REMOVE;
}

} // namespace

SoupHttpClient::SoupHttpClient()
    : session(soup_session_new_with_options("timeout", silence, "user-agent", "Quorvel", nullptr))
{}

Subscription SoupHttpClient::get(const std::string& address, std::function<void(Answer)> completion)
{
    auto request = std::make_unique<Request>();
    request->completion = std::move(completion);
    request->message.reset(soup_message_new(SOUP_METHOD_GET, address.c_str()));
    auto* const cancellable = G_CANCELLABLE(g_object_ref(request->cancellable.get()));
    Subscription subscription([cancellable] {
        g_cancellable_cancel(cancellable);
        g_object_unref(cancellable);
    });
    if (!request->message) {
        g_idle_add(onMalformedAddress, request.release());
        return subscription;
    }
    SoupMessage* const message = request->message.get();
    soup_session_send_async(session.get(), message, G_PRIORITY_DEFAULT, cancellable, onSent, request.release());
    return subscription;
}

} // namespace quorvel::x11
