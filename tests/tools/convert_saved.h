// What the user does in Layout with an object that was saved in Modeler: loads and converts it.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "standin/core/program_folder.h"
#include "standin/core/tool_names.h"
#include "standin/core/witness.h"
#include "standin/layout/layout_host.h"
#include "standin/panels/person.h"

namespace varnel::test {

inline void convertSaved(standin::LayoutHost& host, const std::string& path) {
  standin::ModuleFile module;
  ASSERT_EQ(module.load(standin::modulePath()), "");
  host.select(host.loadObject(path));
  ASSERT_EQ(host.activate(module, standin::kConversionTool), 0);
  EXPECT_TRUE(
      standin::person::press(standin::panels().find(standin::kConversionTool)->find(standin::ControlKind::Button, 0)));
  standin::panels().moduleUnloaded();
  module.unload();
  EXPECT_EQ(standin::witness().report(), "");
}

}  // namespace varnel::test
