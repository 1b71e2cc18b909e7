#include "support/CertificateAuthority.h"

#include "support/ChildProcess.h"
#include "support/Patience.h"

namespace quorvel::xtest {

namespace {

void openssl(std::vector<std::string> words)
{
    words.insert(words.begin(), "openssl");
    ChildProcess process(Command{.words = words});
    if (process.waitForEnd() != 0) {
        throw HarnessError("openssl " + words.at(1) + " has failed");
    }
}

} // namespace

CertificateAuthority::CertificateAuthority()
{
    folder.write("authority.conf", "[req]\ndistinguished_name = name\n[name]\n"
                                   "[authority]\nbasicConstraints = critical, CA:TRUE\n");
    openssl({"req", "-x509", "-config", file("authority.conf"), "-extensions", "authority", "-subj", "/CN=Authority",
             "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes", "-keyout", file("authority.key"),
             "-out", certificate()});
}

bool CertificateAuthority::isInstalled()
{
    return findProgram("openssl").has_value();
}

std::filesystem::path CertificateAuthority::certificate() const
{
    return file("authority.pem");
}

ServerIdentity CertificateAuthority::identityOf(const std::string& name, Validity validity) const
{
    const ServerIdentity identity{file("server.pem"), file("server.key")};
    folder.write("server.conf", "[server]\nbasicConstraints = critical, CA:FALSE\nsubjectAltName = " + name + "\n");
    openssl({"req", "-new", "-config", file("authority.conf"), "-subj", "/CN=Server", "-newkey", "ec", "-pkeyopt",
             "ec_paramgen_curve:prime256v1", "-nodes", "-keyout", identity.key, "-out", file("server.csr")});
    openssl({"x509", "-req", "-in", file("server.csr"), "-CA", certificate(), "-CAkey", file("authority.key"), "-days",
             validity == Validity::now ? "2" : "-1", "-extfile", file("server.conf"), "-extensions", "server", "-out",
             identity.certificate});
    return identity;
}

} // namespace quorvel::xtest
