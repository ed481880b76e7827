// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "paperTest.h"

namespace boulix::testing_support {

namespace {

/// The server runs from the first test that asks for it to the end of the last one.
class ServerEnvironment : public ::testing::Environment {
  public:
    void TearDown() override { server.reset(); }
    std::optional<PrintServer> server;
};

ServerEnvironment *const environment = [] {
    auto *made = new ServerEnvironment; // owned by the test library from here on
    ::testing::AddGlobalTestEnvironment(made);
    return made;
}();

} // namespace

PrintServer &PaperTest::server() {
    if (!environment->server)
        environment->server.emplace();
    return *environment->server;
}

} // namespace boulix::testing_support
