// In which order the scene layer looks an item up by its name, and what becomes of a channel that has no key.
#include "tests/tools/scene_layer_fixture.h"

namespace varnel::test {
namespace {

// Looked up in a list that is made for it, and in one that was made before the items were there, so that it has to search.
class SceneSearch : public SceneLayer {
 protected:
  SceneSearch() { EXPECT_EQ(old_.FindItemByName("nobody"), nullptr); }

  void expectFound(const std::string& name, const Item& wanted) {
    lw::CSceneItems fresh;
    EXPECT_EQ(fresh.FindItemByName(name), id(wanted));
    EXPECT_EQ(old_.FindItemByName(name), id(wanted));
  }

 private:
  lw::CSceneItems old_;
};

TEST_F(SceneSearch, FindsAnObjectBeforeItsOwnBoneOfThatName) {
  Item& object = host.scene().addNull("Arm");
  host.scene().addBone(object, "Arm");
  expectFound("Arm", object);
}

TEST_F(SceneSearch, FindsABoneBeforeALaterObject) {
  Item& bone = host.scene().addBone(host.scene().addNull("Body"), "Arm");
  host.scene().addNull("Arm");
  expectFound("Arm", bone);
}

TEST_F(SceneSearch, FindsALightBeforeACamera) {
  host.scene().addCamera("Key");
  Item& light = host.scene().addLight("Key");
  expectFound("Key", light);
}

class ChannelsWithoutKeys : public SceneLayer {
 protected:
  static standin::LayoutOptions noKeys() {
    standin::LayoutOptions options;
    options.keysOnNewItems = 0;
    return options;
  }
  ChannelsWithoutKeys() : SceneLayer(noKeys()) {}
};

TEST_F(ChannelsWithoutKeys, GetOneAtTheCurrentTime) {
  Item& null = host.scene().addNull("Null");
  host.setTime(0.5);
  lw::SetPosition(id(null), 1, 2, 3);
  const auto& keys = null.motion[standin::kAxisY].keys();
  ASSERT_EQ(keys.size(), 1U);
  EXPECT_EQ(keys[0].time, 0.5);
  EXPECT_EQ(keys[0].value, 2);
}

}  // namespace
}  // namespace varnel::test
