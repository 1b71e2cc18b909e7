#include "platform/x11/desktop/WebClient.h"

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <libsoup/soup.h>

#include "platform/x11/GlibMainLoop.h"
#include "support/CertificateAuthority.h"
#include "support/WebServer.h"

namespace quorvel::x11 {
namespace {

using testing::HasSubstr;

struct Unref {
    void operator()(void* object) const { g_object_unref(object); }
};

// A web server of this process, under the same main loop.
class Server {
public:
    Server() : server(soup_server_new("server-header", "test", nullptr))
    {
        soup_server_listen_local(server.get(), 0, SOUP_SERVER_LISTEN_IPV4_ONLY, nullptr);
        soup_server_add_handler(server.get(), nullptr, onRequest, this, nullptr);
    }

    std::string address(const std::string& path) const
    {
        GSList* const uris = soup_server_get_uris(server.get());
        const int port = g_uri_get_port(static_cast<GUri*>(uris->data));
        g_slist_free_full(uris, reinterpret_cast<GDestroyNotify>(&g_uri_unref));
        return "http://127.0.0.1:" + std::to_string(port) + path;
    }

    std::string document;
    std::string agent;

private:
    static void onRequest(SoupServer*, SoupServerMessage* message, const char* path, GHashTable*, gpointer data)
    {
        auto& self = *static_cast<Server*>(data);
        const char* const agent =
            soup_message_headers_get_one(soup_server_message_get_request_headers(message), "User-Agent");
        self.agent = agent != nullptr ? agent : "";
        if (std::string(path) == "/moved") {
            soup_server_message_set_redirect(message, SOUP_STATUS_FOUND, self.address("/feed").c_str());
        } else if (std::string(path) == "/feed") {
            soup_server_message_set_status(message, SOUP_STATUS_OK, nullptr);
            soup_server_message_set_response(message, "application/xml", SOUP_MEMORY_COPY, self.document.data(),
                                             self.document.size());
        } else {
            soup_server_message_set_status(message, SOUP_STATUS_NOT_FOUND, nullptr);
        }
    }

    std::unique_ptr<SoupServer, Unref> server;
};

// The authorities that programs which start to talk to the web trust for as long as this lives.
class Trust {
public:
    explicit Trust(const std::filesystem::path& authorities) { setenv(variable, authorities.c_str(), 1); }
    Trust(const Trust&) = delete;
    Trust& operator=(const Trust&) = delete;
    ~Trust() { unsetenv(variable); }

private:
    static constexpr auto variable = "SSL_CERT_FILE";
};

class WebClientTest : public testing::Test {
protected:
    HttpClient::Answer answerTo(const std::string& address)
    {
        std::optional<HttpClient::Answer> answer;
        const auto request = client.get(address, [&](HttpClient::Answer given) {
            answer = std::move(given);
            loop.quit(0);
        });
        EXPECT_FALSE(answer); // never from inside the call
        loop.run();
        return answer.value();
    }

    GlibMainLoop loop;
    Server server;
    WebClient client{WebClient::standardFile(), loop};
};

TEST_F(WebClientTest, ADocumentArrivesWhole)
{
    server.document = std::string(200'000, 'x') + '\0' + "end";
    EXPECT_EQ(answerTo(server.address("/feed")), server.document);
    EXPECT_THAT(server.agent, HasSubstr("Quorvel"));
    server.document.clear();
    EXPECT_EQ(answerTo(server.address("/feed")), "");
}

TEST_F(WebClientTest, RedirectionsAreFollowed)
{
    server.document = "here";
    EXPECT_EQ(answerTo(server.address("/moved")), "here");
}

TEST_F(WebClientTest, ADocumentWithoutEndIsRefused)
{
    server.document = std::string((1U << 20U) + 1, 'x');
    const auto answer = answerTo(server.address("/feed"));
    ASSERT_FALSE(answer);
    EXPECT_EQ(answer.error(), "the document is too long");
}

TEST_F(WebClientTest, AFailureIsToldWithItsReason)
{
    EXPECT_EQ(answerTo(server.address("/missing")).error(), "the server answered 404 Not Found");
    EXPECT_NE(answerTo("http://127.0.0.1:1/").error(), "");
    EXPECT_NE(answerTo("https://127.0.0.1:1/").error(), "");
    EXPECT_THAT(answerTo("not an address").error(), HasSubstr("malformed"));
}

TEST_F(WebClientTest, ServersMustProveWhoTheyAre)
{
    if (!xtest::CertificateAuthority::isInstalled()) {
        GTEST_SKIP() << "needs openssl";
    }
    const xtest::CertificateAuthority authority;
    const xtest::CertificateAuthority stranger;
    const Trust trust(authority.certificate());
    const auto answerOf = [&](const xtest::ServerIdentity& identity) {
        return answerTo(xtest::WebServer("secret", identity).address());
    };
    constexpr auto address = "IP:127.0.0.1";
    EXPECT_EQ(answerOf(authority.identityOf(address)), "secret");
    EXPECT_EQ(answerOf(stranger.identityOf(address)).error(),
              "the server's certificate cannot be trusted: no authority that this system trusts vouches for it");
    EXPECT_EQ(answerOf(authority.identityOf("DNS:example.org")).error(),
              "the server's certificate cannot be trusted: it belongs to another server");
    EXPECT_EQ(answerOf(authority.identityOf(address, xtest::Validity::past)).error(),
              "the server's certificate cannot be trusted: it has expired");
}

TEST_F(WebClientTest, TheSystemsAuthoritiesDoNotVouchForAStranger)
{
    if (!xtest::CertificateAuthority::isInstalled()) {
        GTEST_SKIP() << "needs openssl";
    }
    const xtest::CertificateAuthority stranger;
    const xtest::WebServer server("secret", stranger.identityOf("IP:127.0.0.1"));
    EXPECT_THAT(answerTo(server.address()).error(), HasSubstr("certificate cannot be trusted"));
}

TEST_F(WebClientTest, WithoutTheAuthoritiesThatWereAskedForNobodyIsTrusted)
{
    const Trust trust("/nowhere/authorities.pem");
    EXPECT_THAT(answerTo(server.address("/feed")).error(), HasSubstr("certificate authorities cannot be read"));
}

TEST_F(WebClientTest, ARequestThatNobodyAwaitsAnyMoreIsSilent)
{
    server.document = "late";
    bool isAnswered = false;
    {
        const auto request = client.get(server.address("/feed"), [&](const HttpClient::Answer&) { isAnswered = true; });
    }
    EXPECT_EQ(answerTo(server.address("/feed")), "late");
    EXPECT_FALSE(isAnswered);
}

TEST_F(WebClientTest, ARequestMayBeEndedByItsOwnAnswer)
{
    server.document = "x";
    Subscription request;
    request = client.get(server.address("/feed"), [&](const HttpClient::Answer&) {
        request.reset();
        loop.quit(0);
    });
    EXPECT_EQ(loop.run(), 0);
}

TEST_F(WebClientTest, WithoutTheModuleEveryRequestFails)
{
    WebClient crippled("/nowhere/quorvel-web.so", loop);
    std::string reason;
    const auto request = crippled.get(server.address("/feed"), [&](const HttpClient::Answer& answer) {
        reason = answer.error();
        loop.quit(0);
    });
    loop.run();
    EXPECT_THAT(reason, HasSubstr("cannot reach the web"));
}

} // namespace
} // namespace quorvel::x11
