// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>

namespace boulix::testing_support {

/// The top folder of the checkout the tests belong to. ctest tells it in BOULIX_TOP; without it,
/// the first folder from the working directory upwards that holds CMakePresets.json.
/// Throws std::runtime_error where there is none.
std::filesystem::path checkoutFolder();

/// The operator's full published history, which is not part of the project: the file named by
/// BOULIX_HISTORY, or shared/data/ beside the checkout. Nothing where it is not there; a test
/// that needs it skips then.
std::optional<std::filesystem::path> operatorHistory();

/// The invented history that the project ships.
std::filesystem::path sampleHistory();

/// Where tests and the guided tour put their pictures: BOULIX_PICTURES, or out/tour/ of the
/// checkout. The folder exists afterwards.
std::filesystem::path picturesFolder();

} // namespace boulix::testing_support
