import unittest

from include_arrows import problems


class IncludeArrows(unittest.TestCase):
    def accept(self, path, line):
        self.assertEqual(problems(path, line), [])

    def reject(self, path, line):
        self.assertEqual(len(problems(path, line)), 1, f"{path}: {line}")

    def test_a_layer_sees_itself_and_those_below(self):
        self.accept("src/system/A.cpp", '#include "system/B.h"')
        self.accept("src/system/A.cpp", '#include "settings/B.h"')
        self.accept("src/system/A.cpp", '#include "platform/Log.h"')
        self.accept("src/app/A.cpp", '#include "preferences/B.h"')

    def test_a_layer_never_sees_those_above(self):
        self.reject("src/base/A.cpp", '#include "platform/Log.h"')
        self.reject("src/platform/A.cpp", '#include "settings/B.h"')
        self.reject("src/system/A.cpp", '#include "layouts/B.h"')
        self.reject("src/layouts/A.cpp", '#include "app/B.h"')

    def test_an_adapter_sees_base_the_ports_and_itself(self):
        self.accept("src/platform/x11/A.cpp", '#include "platform/x11/painting/B.h"')
        self.accept("src/platform/x11/A.cpp", '#include "platform/Log.h"')
        self.accept("src/platform/x11/A.cpp", '#include "base/Color.h"')
        self.reject("src/platform/x11/A.cpp", '#include "platform/simulated/B.h"')
        self.reject("src/platform/x11/A.cpp", '#include "system/B.h"')

    def test_no_layer_but_main_sees_an_adapter(self):
        self.reject("src/app/A.cpp", '#include "platform/x11/B.h"')
        self.reject("src/platform/A.cpp", '#include "platform/simulated/B.h"')
        self.accept("src/main/A.cpp", '#include "platform/x11/B.h"')

    def test_platform_headers_stay_in_adapters_and_main(self):
        self.reject("src/system/A.cpp", "#include <xcb/xcb.h>")
        self.reject("src/app/A.cpp", "#include <QString.h>")
        self.reject("src/app/A.cpp", "#import <AppKit/AppKit.h>")
        self.accept("src/platform/x11/A.cpp", "#include <xcb/xcb.h>")
        self.accept("src/main/A.cpp", "#include <unistd.h>")

    def test_portable_libraries_are_seen_everywhere(self):
        self.accept("src/base/A.cpp", "#include <vector>")
        self.accept("src/base/A.cpp", "#include <fmt/format.h>")
        self.accept("src/layouts/A.cpp", "#include <nlohmann/json.hpp>")
        self.accept("tests/unit/base/A.cpp", "#include <gmock/gmock.h>")
        self.reject("src/base/A.cpp", "#include <gtest/gtest.h>")

    def test_portable_tests_see_no_platform(self):
        self.reject("tests/unit/app/A.cpp", '#include "platform/x11/B.h"')
        self.reject("tests/contract/A.cpp", "#include <xcb/xcb.h>")
        self.accept("tests/unit/app/A.cpp", '#include "platform/simulated/B.h"')
        self.accept("tests/x11/A.cpp", '#include "platform/x11/B.h"')
        self.accept("tests/unit/x11/A.cpp", '#include "platform/x11/B.h"')
        self.accept("tests/contract/x11/A.cpp", '#include "platform/x11/B.h"')
        self.reject("tests/contract/A.cpp", '#include "platform/x11/B.h"')
        self.accept("tests/x11/A.cpp", "#include <xcb/xcb.h>")

    def test_the_harness_knows_no_product_code_but_base(self):
        self.reject("tests/support/A.cpp", '#include "platform/Log.h"')
        self.accept("tests/support/A.cpp", '#include "base/Geometry.h"')
        self.accept("tests/support/A.cpp", '#include "support/B.h"')

    def test_platform_macros_stay_in_adapters(self):
        self.reject("src/app/A.cpp", "#ifdef __APPLE__")
        self.accept("src/platform/macos/A.mm", "#ifdef __APPLE__")

    def test_headers_start_with_pragma_once(self):
        self.assertEqual(problems("src/base/A.h", "#pragma once\n"), [])
        self.reject("src/base/A.h", "// hello\n#pragma once\n")


if __name__ == "__main__":
    unittest.main()
