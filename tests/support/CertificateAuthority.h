#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "support/TemporaryDirectory.h"

namespace quorvel::xtest {

// What a web server proves with who it is; files in the PEM form.
struct ServerIdentity {
    std::filesystem::path certificate;
    std::filesystem::path key;
};

enum class Validity { now, past };

// An authority of the test's own that vouches for web servers, made with openssl.
class CertificateAuthority {
public:
    CertificateAuthority();

    static bool isInstalled();

    // What those hold who trust it.
    std::filesystem::path certificate() const;

    // The name is that of a certificate's extension: "IP:127.0.0.1", "DNS:example.org". The files hold until the next
    // call.
    ServerIdentity identityOf(const std::string& name, Validity validity = Validity::now) const;

private:
    std::filesystem::path file(const std::string& name) const { return folder.path() / name; }

    TemporaryDirectory folder;
};

} // namespace quorvel::xtest
