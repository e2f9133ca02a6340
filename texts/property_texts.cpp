#include "texts/labels.h"
#include "texts/texts.h"

namespace texts {
namespace {

// The byte 0x03 and the bracketed code make the host draw an arrow: the label of the buttons that fill a name in.
constexpr const char* kLeftArrow =
    "\x03"
    "(i:MIMG_LEFTARROW)";

// clang-format off
// "IK/FKブレンディグ" is spelled so on purpose.
constexpr LabelRow kPropertyLabels[] = {
    {  2, "Reset",                             "Reset"},
    {  3, "ResetAll",                          "ResetAll"},
    {  4, "Sync",                              "Sync"},
    {  7, "Skelegon",                          "スケルゴン"},
    {  8, "Skelegon",                          "スケルゴン"},
    {  9, "Use Bones From Object",             "別オブジェクトを使用"},
    { 10, "Falloff Type",                      "フォールオフ種"},
    { 11, "Bone Calc",                         "ボーン処理"},
    { 12, "Limit Bone Num",                    "制限ボーンの数"},
    { 13, "Bone Type",                         "ボーン種"},
    { 14, "Bone Active",                       "ボーン有効"},
    { 15, "Bone Weight Map",                   "ボーンウェイトマップ"},
    { 17, kLeftArrow, kLeftArrow},
    { 18, "Use Weight Map Only",               "ウェイトのみ使用"},
    { 19, "Weight Normalization",              "ウェイト正規化"},
    { 20, "Strength",                          "強さ"},
    { 21, "Multiply Strength by Rest Length",  "固定長の強さで乗算"},
    { 22, "Limited Range",                     "影響範囲限定"},
    { 23, "Min",                               "開始"},
    { 24, "Max",                               "終了"},
    { 25, "Joint Compensation",                "接合部補正"},
    { 27, "Joint Comp for Parent",             "接合部補正(親)"},
    { 29, "Muscle Flexing",                    "筋肉の発生"},
    { 31, "Parental Muscle Flexing",           "筋肉の発生(親)"},
    { 33, "Muscle Bulge",                      "筋肉の隆起"},
    { 35, "Parent Muscle Bulge",               "筋肉の隆起(親)"},
    { 37, "Twist",                             "ツイスト"},
    { 39, "Bone Icon Size",                    "ボーンアイコンサイズ"},
    { 40, "Visibility",                        "表示"},
    { 41, "Color",                             "色"},
    { 42, "Initial Position Item",             "初期位置アイテム"},
    { 43, kLeftArrow, kLeftArrow},
    { 44, "Shp",                               "Shp"},
    { 45, "Visibility",                        "表示"},
    { 46, "Color",                             "色"},
    { 47, "Parent Item",                       "親アイテム"},
    { 49, "Target Item",                       "目標アイテム"},
    { 50, kLeftArrow, kLeftArrow},
    { 51, "Shp",                               "Shp"},
    { 52, "Visibility",                        "表示"},
    { 53, "Color",                             "色"},
    { 54, "Target Item Parent",                "目標アイテム親"},
    { 56, "Pole Item",                         "極ベクトルアイテム"},
    { 57, kLeftArrow, kLeftArrow},
    { 58, "Shp",                               "Shp"},
    { 59, "Visibility",                        "表示"},
    { 60, "Color",                             "色"},
    { 61, "Pole Item Parent",                  "極ベクトルアイテム親"},
    { 63, "Rotation Order",                    "回転順序"},
    { 64, "Unaffected by IK of Descendants",   "子孫のIK効果を及ぼさない"},
    { 65, "Goal Object",                       "ゴールオブジェクト"},
    { 66, kLeftArrow, kLeftArrow},
    { 67, "Shp",                               "Shp"},
    { 68, "Visibility",                        "表示"},
    { 69, "Color",                             "色"},
    { 70, "Goal Object Parent",                "ゴールオブジェクト親"},
    { 72, "Objective",                         "オブジェクティブ"},
    { 74, "Frame",                             "フレーム"},
    { 75, "Chain",                             "チェーン"},
    { 76, "IK/FK Blending",                    "IK/FKブレンディグ"},
    { 77, "Goal Strength",                     "ゴールの強さ"},
    { 78, "Soft IK",                           "ソフトIK"},
    { 79, "Distance Type",                     "距離タイプ"},
    { 80, "Min",                               "最小"},
    { 81, "Max",                               "最大"},
    { 82, "Match Goal Orientation",            "ゴール回転と同期"},
    { 83, "Keep Goal In Reach",                "ゴールを接着"},
    { 84, "Full-time IK",                      "フルタイムIK"},
    { 85, "Align to Path Look-ahead",          "パス進行方向に向く"},
    { 86, "Max Steps",                         "最大ステップ"},
    { 87, "Reliable Distance",                 "距離確定"},
    { 88, "KeyFrame",                          "KeyFrame"},
    { 89, "IK",                                "IK"},
    { 90, "Item",                              "Item"},
    { 91, "World",                             "ワールド"},
    { 92, "Position Item",                     "位置アイテム"},
    { 93, kLeftArrow, kLeftArrow},
    { 94, "Shp",                               "Shp"},
    { 95, "Visibility",                        "表示"},
    { 96, "Color",                             "色"},
    { 97, "Position Item Parent",              "位置アイテム親"},
    {101, "X Position Controller",             "X位置制御"},
    {102, "X Pos Limits",                      "X位置制限"},
    {103, "Min",                               "最小"},
    {104, "Max",                               "最大"},
    {105, "Follow",                            "追跡"},
    {106, "x/+",                               "x/+"},
    {108, "X Position Stiffness",              "X位置粘性"},
    {109, "Y Position Controller",             "Y位置制御"},
    {110, "Y Pos Limits",                      "Y位置制限"},
    {111, "Min",                               "最小"},
    {112, "Max",                               "最大"},
    {113, "Follow",                            "追跡"},
    {114, "x/+",                               "x/+"},
    {116, "Y Position Stiffness",              "Y位置粘性"},
    {117, "Z Position Controller",             "Z位置制御"},
    {118, "Z Pos Limits",                      "Z位置制限"},
    {119, "Min",                               "最小"},
    {120, "Max",                               "最大"},
    {121, "Follow",                            "追跡"},
    {122, "x/+",                               "x/+"},
    {124, "Z Position Stiffness",              "Z位置粘性"},
    {125, "World",                             "ワールド"},
    {126, "Rotation Item",                     "回転アイテム"},
    {127, kLeftArrow, kLeftArrow},
    {128, "Shp",                               "Shp"},
    {129, "Visibility",                        "表示"},
    {130, "Color",                             "色"},
    {131, "Rotation Item Parent",              "回転アイテム親"},
    {135, "Heading Controller",                "ヘディング制御"},
    {136, "Heading Limits",                    "ヘディング制限"},
    {137, "Min",                               "最小"},
    {138, "Max",                               "最大"},
    {139, "Follow",                            "追跡"},
    {140, "x/+",                               "x/+"},
    {142, "Heading Stiffness",                 "ヘディング粘性"},
    {143, "Pitch Controller",                  "ピッチ制御"},
    {144, "Pitch Limits",                      "ピッチ制限"},
    {145, "Min",                               "最小"},
    {146, "Max",                               "最大"},
    {147, "Follow",                            "追跡"},
    {148, "x/+",                               "x/+"},
    {150, "Pitch Stiffness",                   "ピッチ粘性"},
    {151, "Bank Controller",                   "バンク制御"},
    {152, "Bank Limits",                       "バンク制限"},
    {153, "Min",                               "最小"},
    {154, "Max",                               "最大"},
    {155, "Follow",                            "追跡"},
    {156, "x/+",                               "x/+"},
    {158, "Bank Stiffness",                    "バンク粘性"},
    {159, "Scale Item",                        "スケールアイテム"},
    {160, kLeftArrow, kLeftArrow},
    {161, "Shp",                               "Shp"},
    {162, "Visibility",                        "表示"},
    {163, "Color",                             "色"},
    {164, "Scale Item Parent",                 "スケールアイテム親"},
    {168, "X Scale Controller",                "Xスケール制御"},
    {169, "X Scale Limits",                    "Xスケール制限"},
    {170, "Min",                               "最小"},
    {171, "Max",                               "最大"},
    {172, "Follow",                            "追跡"},
    {173, "x/+",                               "x/+"},
    {175, "X Scale Stiffness",                 "Xスケール粘性"},
    {176, "Y Scale Controller",                "Yスケール制御"},
    {177, "Y Scale Limits",                    "Yスケール制限"},
    {178, "Min",                               "最小"},
    {179, "Max",                               "最大"},
    {180, "Follow",                            "追跡"},
    {181, "x/+",                               "x/+"},
    {183, "Y Scale Stiffness",                 "Yスケール粘性"},
    {184, "Z Scale Controller",                "Zスケール制御"},
    {185, "Z Scale Limits",                    "Zスケール制限"},
    {186, "Min",                               "最小"},
    {187, "Max",                               "最大"},
    {188, "Follow",                            "追跡"},
    {189, "x/+",                               "x/+"},
    {191, "Z Scale Stiffness",                 "Zスケール粘性"},
};
static_assert(rowsAreSound(kPropertyLabels));
constexpr auto kPropertyLabelTables = labelTables<kPropertyLabelCount>(kPropertyLabels);

constexpr const char* kPagesEn[] = {"Group", "Bone Property", "IK Option", "Controllers and Limits", nullptr};
constexpr const char* kPagesJa[] = {"グループ", "ボーンプロパティ", "IKオプション", "制御と制限", nullptr};
constexpr const char* kFalloffTypeEn[] = {
    "Inverse Distance", "Inverse Distance^2", "Inverse Distance^4", "Inverse Distance^8", "Inverse Distance^16",
    "Inverse Distance^32", "Inverse Distance^64", "Inverse Distance^128", nullptr,
};
constexpr const char* kFalloffTypeJa[] = {
    "反比例", "反比例^2", "反比例^4", "反比例^8", "反比例^16", "反比例^32", "反比例^64", "反比例^128", nullptr,
};
constexpr const char* kBoneCalcEn[] = {"All Bone", "All Bone(After Morph)", "Fast Bone", "Limited Bone", nullptr};
constexpr const char* kBoneCalcJa[] = {"全ボーン", "全ボーン(モーフ後の位置)", "高速ボーン", "制限ボーン", nullptr};
constexpr const char* kBoneTypeEn[] = {"Z axis", "Joint", nullptr};
constexpr const char* kBoneTypeJa[] = {"Z軸", "ジョイント", nullptr};
constexpr const char* kObjectiveEn[] = {"Go to Goal", "Point at Goal", "YZ Plane through Goal", nullptr};
constexpr const char* kObjectiveJa[] = {"ゴールへ", "ゴールを注視", "YZ平面へ", nullptr};
constexpr const char* kOffOnEn[] = {"Off", "On", nullptr};
constexpr const char* kOffOnJa[] = {"オフ", "オン", nullptr};
constexpr const char* kIKInitialStateEn[] = {
    "Base on First Keyframe", "Base on Most Recent Keyframe", "Base on Current Time", "Base on Frame", nullptr,
};
constexpr const char* kIKInitialStateJa[] = {
    "最初のキーフレームを基準", "最近のキーフレームを基準", "現在の時間を基準", "フレーム基準", nullptr,
};
constexpr const char* kSoftIKEn[] = {
    "No Soft IK", "Soft IK (exponential)", "Soft IK (linear)", "Soft IK (clamp)", nullptr,
};
constexpr const char* kSoftIKJa[] = {"なし", "指数", "リニア", "固定", nullptr};
constexpr const char* kDistanceTypeEn[] = {"Chain Chord", "Chain Length", "Given Lengths", nullptr};
constexpr const char* kDistanceTypeJa[] = {"チェーンコード", "チェーン長", "固定", nullptr};
constexpr const char* kMotionGroupsEn[] = {"Position", "Rotation", "Scale", nullptr};
constexpr const char* kMotionGroupsJa[] = {"位置", "回転", "スケール", nullptr};
constexpr const char* kBlendMethodEn[] = {"Interpolate", "Compensate", nullptr};
constexpr const char* kBlendMethodJa[] = {"補完", "補正", nullptr};
constexpr const char* kControllerEn[] = {
    "Key Frames", "Point at Target", "Align to Velocity", "Inverse Kinematics", "Align to Path", "Align to Pole",
    "Same as Item", nullptr,
};
constexpr const char* kControllerJa[] = {
    "キーフレーム", "目標を注視", "速度に沿う", "インバースキネマティクス", "パスに沿う", "極ベクトルに沿う",
    "アイテムと同じ", nullptr,
};
constexpr const char* kFollowChannel[] = {"X", "Y", "Z", "H", "P", "B", "SX", "SY", "SZ", nullptr};
// The byte 0x03 and the bracketed code make the host draw a swatch of that colour before the name. "Magenda" is spelled so.
#define VARNEL_COLOUR_ENTRIES \
  "\x03" "(i:BLOCK8, 16777216)Black", \
  "\x03" "(i:BLOCK8, 16809992)Dark Blue", \
  "\x03" "(i:BLOCK8, 16777312)Dark Green", \
  "\x03" "(i:BLOCK8, 18903136)Dark Cyan", \
  "\x03" "(i:BLOCK8, 24117248)Dark Red", \
  "\x03" "(i:BLOCK8, 24145952)Purple", \
  "\x03" "(i:BLOCK8, 24117328)Brown", \
  "\x03" "(i:BLOCK8, 28356784)Grey", \
  "\x03" "(i:BLOCK8, 18935968)Blue", \
  "\x03" "(i:BLOCK8, 18882784)Green", \
  "\x03" "(i:BLOCK8, 23130336)Cyan", \
  "\x03" "(i:BLOCK8, 32514080)Red", \
  "\x03" "(i:BLOCK8, 32567392)Magenda", \
  "\x03" "(i:BLOCK8, 32514240)Orange", \
  "\x03" "(i:BLOCK8, 33554431)White",
constexpr const char* kColourEn[] = {VARNEL_COLOUR_ENTRIES "Modeler Setting", nullptr};
constexpr const char* kColourJa[] = {VARNEL_COLOUR_ENTRIES "モデラー設定", nullptr};
#undef VARNEL_COLOUR_ENTRIES
constexpr const char* kRotationOrder[] = {
    "XYZ / PHB", "YZX / HBP", "ZXY / BPH", "YXZ / HPB", "XZY / PBH", "ZYX / BHP", nullptr,
};

constexpr std::array<ChoiceListRow, kChoiceListCount> kPropertyChoices = {{
    // list                  entries with the null, English, Japanese
    {ChoiceList::Pages,            5, kPagesEn,            kPagesJa},
    {ChoiceList::FalloffType,      9, kFalloffTypeEn,      kFalloffTypeJa},
    {ChoiceList::BoneCalc,         5, kBoneCalcEn,         kBoneCalcJa},
    {ChoiceList::BoneType,         3, kBoneTypeEn,         kBoneTypeJa},
    {ChoiceList::Objective,        4, kObjectiveEn,        kObjectiveJa},
    {ChoiceList::OffOn,            3, kOffOnEn,            kOffOnJa},
    {ChoiceList::IKInitialState,   5, kIKInitialStateEn,   kIKInitialStateJa},
    {ChoiceList::SoftIK,           5, kSoftIKEn,           kSoftIKJa},
    {ChoiceList::DistanceType,     4, kDistanceTypeEn,     kDistanceTypeJa},
    {ChoiceList::MotionGroups,     4, kMotionGroupsEn,     kMotionGroupsJa},
    {ChoiceList::BlendMethod,      3, kBlendMethodEn,      kBlendMethodJa},
    {ChoiceList::Controller,       8, kControllerEn,       kControllerJa},
    {ChoiceList::FollowChannel,   10, kFollowChannel,      kFollowChannel},
    {ChoiceList::Colour,          17, kColourEn,           kColourJa},
    {ChoiceList::RotationOrder,    7, kRotationOrder,      kRotationOrder},
}};
static_assert(listsAreSound(kPropertyChoices));
// clang-format on

}  // namespace

const std::array<const char*, kPropertyLabelCount>& propertyLabels(Language language) {
  return kPropertyLabelTables[static_cast<std::size_t>(language)];
}

const std::array<ChoiceListRow, kChoiceListCount>& propertyChoices() { return kPropertyChoices; }

}  // namespace texts
