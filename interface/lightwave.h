// The host's binary plug-in interface: what Modeler and Layout hand to a module, and what they expect from it.
//
// Declared here once, for the module and for the stand-in host. Every layout is asserted byte by byte below its
// declaration: a wrong offset crashes a user's session. The numbers hold for 64-bit Windows and 64-bit Linux alike, since
// no member is a C `long`. Tables are declared only as far as they are used; `gap` members stand for slots that nobody
// calls.
//
// Texts are zero-terminated UTF-8 unless a member says otherwise. Texts, records and arrays that the host returns belong
// to the host and are good until the next call into it: copy at once.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lw {

// ---------------------------------------------------------------------------------------------------------------------
// Opaque handles of the host. Never dereferenced; null means "none".

using PointId = struct OpaquePoint*;
using PolygonId = struct OpaquePolygon*;
using EditId = struct OpaqueEdit*;
using ItemId = struct OpaqueItem*;
using GroupId = struct OpaqueGroup*;
using ChannelId = struct OpaqueChannel*;
using EnvelopeId = struct OpaqueEnvelope*;
using KeyId = struct OpaqueKey*;
using PanelId = struct OpaquePanel*;
using GapSlot = void*;

// ---------------------------------------------------------------------------------------------------------------------
// Module entry

// Looks a host service up by name. Null when the host does not offer it. A few globals are numbers carried in the pointer.
using GlobalFunc = void* (*)(const char* name, int use);
inline constexpr int kUseTransient = 0;

using ActivateFunc = int (*)(int version, GlobalFunc global, void* local, void* serverData);

enum ActivationResult : int {
  kActivationOk = 0,
  kActivationBadVersion = 1,
  kActivationBadGlobal = 2,
};

struct ServerTagInfo {
  const char* string;
  unsigned tag;
};
static_assert(sizeof(ServerTagInfo) == 16);

struct ServerRecord {
  const char* className;
  const char* name;
  ActivateFunc activate;
  ServerTagInfo* tagInfo;
};
static_assert(sizeof(ServerRecord) == 32);
static_assert(offsetof(ServerRecord, name) == 8);
static_assert(offsetof(ServerRecord, activate) == 16);
static_assert(offsetof(ServerRecord, tagInfo) == 24);

struct ModuleDescriptor {
  unsigned sysSync;
  unsigned sysVersion;
  unsigned sysMachine;
  void* (*startup)();
  void (*shutdown)(void* serverData);
  const ServerRecord* serverDefs;
};
static_assert(sizeof(ModuleDescriptor) == 40);
static_assert(offsetof(ModuleDescriptor, sysVersion) == 4);
static_assert(offsetof(ModuleDescriptor, sysMachine) == 8);
static_assert(offsetof(ModuleDescriptor, startup) == 16);
static_assert(offsetof(ModuleDescriptor, shutdown) == 24);
static_assert(offsetof(ModuleDescriptor, serverDefs) == 32);

inline constexpr unsigned kSysSync = 0x04121994;
inline constexpr unsigned kSysVersion = 3;
inline constexpr unsigned kSysMachine = 0x300;

inline constexpr int kModCommandVersion = 4;     // of the "CommandSequence" local data
inline constexpr int kLayoutGenericVersion = 7;  // of the "LayoutGeneric" local data

// ---------------------------------------------------------------------------------------------------------------------
// Modeler

// One four-character code, first character in the highest byte.
constexpr std::uint32_t fourCharacters(char a, char b, char c, char d) {
  const auto byte = [](char ch) { return static_cast<std::uint32_t>(static_cast<unsigned char>(ch)); };
  return byte(a) << 24 | byte(b) << 16 | byte(c) << 8 | byte(d);
}

inline constexpr std::uint32_t kTagBone = fourCharacters('B', 'O', 'N', 'E');
inline constexpr std::uint32_t kTagPart = fourCharacters('P', 'A', 'R', 'T');
inline constexpr std::uint32_t kTagBoneWeight = fourCharacters('B', 'N', 'W', 'T');
inline constexpr std::uint32_t kTagColour = fourCharacters('C', 'O', 'L', 'R');
inline constexpr std::uint32_t kTypeBone = kTagBone;
inline constexpr std::uint32_t kTypeFace = fourCharacters('F', 'A', 'C', 'E');
inline constexpr std::uint32_t kMapWeight = fourCharacters('W', 'G', 'H', 'T');

enum ElementFlags : int { kElementSelected = 1, kElementDeleted = 2 };
enum LayerChoice : int {
  kLayersForeground = 1,
  kLayersAll = 4,
  kLayersNonEmpty = 6,
};
enum EditMode : int { kEditAll = 0, kEditDirect = 2, kEditSelecting = 0x8000 };
enum EditError : int {
  kEditNoError = 0,
  kEditNoMemory = 1,
  kEditBadLayer = 2,
  kEditBadSurface = 3,
  kEditUserAbort = 4,
  kEditBadArguments = 5,
};

// One polygon as the edit sees it. The host fills one and the same record anew at each query.
struct EDPolygonInfo {
  PolygonId pol;
  GapSlot gap_8;
  int layer;
  int flags;
  int numPnts;
  const PointId* points;
  const char* surface;
  std::uint32_t type;
  int typeFlags;
  unsigned gap_56;
  GapSlot gap_64;
};
static_assert(sizeof(EDPolygonInfo) == 72);
static_assert(offsetof(EDPolygonInfo, layer) == 16);
static_assert(offsetof(EDPolygonInfo, flags) == 20);
static_assert(offsetof(EDPolygonInfo, numPnts) == 24);
static_assert(offsetof(EDPolygonInfo, points) == 32);
static_assert(offsetof(EDPolygonInfo, surface) == 40);
static_assert(offsetof(EDPolygonInfo, type) == 48);

using FastPolygonScan = int (*)(void* user, PolygonId polygon);

// An open mesh edit. `state` is the first argument of every call. Changes become visible at `done` with error 0 and are
// dropped with any other error. While an edit is open no command may be sent and no other edit be begun.
struct MeshEditOp {
  EditId state;
  int layerNum;
  void (*done)(EditId, int error, int after);
  GapSlot gap_24[5];
  EDPolygonInfo* (*polyInfo)(EditId, PolygonId);
  GapSlot gap_72[13];
  int (*polTag)(EditId, PolygonId, std::uint32_t type, const char* text);  // a null text removes the tag
  GapSlot gap_184[6];
  const char* (*polyTag)(EditId, PolygonId, std::uint32_t type);  // null: no such tag
  GapSlot gap_240;
  int (*polSelect)(EditId, PolygonId, int on);  // only in an edit begun with kEditSelecting
  GapSlot gap_256[12];
  void (*pointPos)(EditId, PointId, double out[3]);
  GapSlot gap_360;
  std::uint32_t (*polyType)(EditId, PolygonId);
  int (*polyPoints)(EditId, PolygonId, const PointId** out);
  GapSlot gap_384[8];
  int (*fastPolyScan)(EditId, FastPolygonScan, void* user, int layers, int selectedOnly);
  GapSlot gap_456[22];
};
static_assert(sizeof(MeshEditOp) == 632);
static_assert(offsetof(MeshEditOp, layerNum) == 8);
static_assert(offsetof(MeshEditOp, done) == 16);
static_assert(offsetof(MeshEditOp, polyInfo) == 64);
static_assert(offsetof(MeshEditOp, polTag) == 176);
static_assert(offsetof(MeshEditOp, polyTag) == 232);
static_assert(offsetof(MeshEditOp, polSelect) == 248);
static_assert(offsetof(MeshEditOp, pointPos) == 352);
static_assert(offsetof(MeshEditOp, polyType) == 368);
static_assert(offsetof(MeshEditOp, polyPoints) == 376);
static_assert(offsetof(MeshEditOp, fastPolyScan) == 448);

using EvaluateFunc = int (*)(void* data, const char* command);  // 0 = accepted, else an error code
using EditBeginFunc = MeshEditOp* (*)(int pointBytes, int edgeBytes, int polygonBytes, int mode);
using UndoFunc = void (*)();

// Local data of a "CommandSequence" activation. The record itself is good only during the activation.
struct LWModCommand {
  void* data;
  const char* argument;
  GapSlot gap_16[3];
  EvaluateFunc evaluate;
  UndoFunc undoGroupBegin;
  UndoFunc undoGroupEnd;
  EditBeginFunc editBegin2;
};
static_assert(sizeof(LWModCommand) == 72);
static_assert(offsetof(LWModCommand, argument) == 8);
static_assert(offsetof(LWModCommand, evaluate) == 40);
static_assert(offsetof(LWModCommand, undoGroupBegin) == 48);
static_assert(offsetof(LWModCommand, undoGroupEnd) == 56);
static_assert(offsetof(LWModCommand, editBegin2) == 64);

// Local data of a "LayoutGeneric" activation; not consulted.
struct LWLayoutGeneric {
  GapSlot gap_0[8];
};
static_assert(sizeof(LWLayoutGeneric) == 64);

// "LWM: State Query 5"
struct LWStateQueryFuncs {
  int (*numLayers)();  // of the current object, those that hold data
  GapSlot gap_8[3];
  const char* (*layerList)(int layers, const char* object);
  const char* (*object)();  // file name of the current object; null when none is loaded
  GapSlot gap_48[4];
};
static_assert(sizeof(LWStateQueryFuncs) == 80);
static_assert(offsetof(LWStateQueryFuncs, layerList) == 32);
static_assert(offsetof(LWStateQueryFuncs, object) == 40);

// "Scene Objects 9". Layers are indexed from 0 here.
struct LWObjectFuncs {
  int (*numObjects)();
  const char* (*filename)(int object);
  int (*maxLayers)(int object);
  int (*layerExists)(int object, int layer);
  GapSlot gap_32[2];
  int (*numVMaps)(std::uint32_t type);
  const char* (*vmapName)(std::uint32_t type, int index);
  GapSlot gap_64[2];
  const char* (*layerName)(int object, int layer);
  GapSlot gap_88[2];
  const char* (*refName)(int object);  // fixed for the object's life
  GapSlot gap_112[2];
};
static_assert(sizeof(LWObjectFuncs) == 128);
static_assert(offsetof(LWObjectFuncs, filename) == 8);
static_assert(offsetof(LWObjectFuncs, maxLayers) == 16);
static_assert(offsetof(LWObjectFuncs, layerExists) == 24);
static_assert(offsetof(LWObjectFuncs, numVMaps) == 48);
static_assert(offsetof(LWObjectFuncs, vmapName) == 56);
static_assert(offsetof(LWObjectFuncs, layerName) == 80);
static_assert(offsetof(LWObjectFuncs, refName) == 104);

// "Info Messages 4"
struct LWMessageFuncs {
  GapSlot gap_0;
  void (*error)(const char* first, const char* second);
  GapSlot gap_16[2];
  int (*yesNo)(const char* title, const char* first, const char* second);
  GapSlot gap_40[3];
};
static_assert(sizeof(LWMessageFuncs) == 64);
static_assert(offsetof(LWMessageFuncs, error) == 8);
static_assert(offsetof(LWMessageFuncs, yesNo) == 32);

// ---------------------------------------------------------------------------------------------------------------------
// Panels: "LWPanelServices 3", both programs

enum ValueType : int {
  kValueString = 1,
  kValueInteger = 2,
  kValueFloat = 3,
  kValueBoolean = 8,
  kValueChoice = 9,
  kValueText = 12,
  kValueRange = 15,
  kValuePopup = 18,
  kValueArea = 19,
  kValuePointer = 23,
};

struct LWValInt {
  int type;
  int value;
  int defVal;
};
static_assert(sizeof(LWValInt) == 12);

struct LWValFloat {
  int type;
  double value;
  double defVal;
};
static_assert(sizeof(LWValFloat) == 24);
static_assert(offsetof(LWValFloat, value) == 8);

struct LWValString {
  int type;
  char* buf;
  int bufLen;
};
static_assert(sizeof(LWValString) == 24);
static_assert(offsetof(LWValString, buf) == 8);
static_assert(offsetof(LWValString, bufLen) == 16);

struct LWValPointer {
  int type;
  void* ptr;
};
static_assert(sizeof(LWValPointer) == 16);
static_assert(offsetof(LWValPointer, ptr) == 8);

// Set `type` before every get and every set.
union LWValue {
  int type;
  LWValInt intv;
  LWValFloat flt;
  LWValString str;
  LWValPointer ptr;
  GapSlot whole[5];
};
static_assert(sizeof(LWValue) == 40);

struct LWPanStringDesc {
  int type;
  int width;  // in characters
};
static_assert(sizeof(LWPanStringDesc) == 8);

struct LWPanChoiceDesc {
  int type;
  const char** items;  // ended by a null; kept alive by the module as long as the panel
  int vertical;        // for a popup: the width in pixels
};
static_assert(sizeof(LWPanChoiceDesc) == 24);
static_assert(offsetof(LWPanChoiceDesc, items) == 8);
static_assert(offsetof(LWPanChoiceDesc, vertical) == 16);

struct LWPanTextDesc {
  int type;
  const char** text;
};
static_assert(sizeof(LWPanTextDesc) == 16);

struct LWPanRangeDesc {
  int type;
  int width;
  int min;
  int max;
};
static_assert(sizeof(LWPanRangeDesc) == 16);

struct LWPanAreaDesc {
  int type;
  int width;
  int height;
};
static_assert(sizeof(LWPanAreaDesc) == 12);

struct LWPanPopupDesc {
  int type;
  int width;
  int (*countFn)(void* user);
  const char* (*nameFn)(void* user, int index);
  GapSlot faceFn;
  GapSlot typeFn;
  GapSlot subMFn;
};
static_assert(sizeof(LWPanPopupDesc) == 48);
static_assert(offsetof(LWPanPopupDesc, countFn) == 8);
static_assert(offsetof(LWPanPopupDesc, nameFn) == 16);

// Cleared as a whole before it is filled: which spare members a kind of control reads is not known.
union LWPanControlDesc {
  int type;
  LWPanStringDesc str;
  LWPanChoiceDesc choice;
  LWPanTextDesc text;
  LWPanRangeDesc range;
  LWPanAreaDesc area;
  LWPanPopupDesc popup;
  GapSlot whole[7];
};
static_assert(sizeof(LWPanControlDesc) == 56);

// A control. Its address is the control's identity in every callback.
struct LWControl {
  void (*draw)(LWControl*, int mode);
  void (*get)(LWControl*, int attribute, LWValue*);
  void (*set)(LWControl*, int attribute, LWValue*);
  void* priv_data;
};
static_assert(sizeof(LWControl) == 32);
static_assert(offsetof(LWControl, get) == 8);
static_assert(offsetof(LWControl, set) == 16);

struct LWPanelFuncs {
  PanelId (*create)(const char* title, void* owner);
  void (*destroy)(PanelId);
  int (*open)(PanelId, int flags);
  GapSlot gap_24;
  void (*draw)(PanelId, int mode);
  void (*close)(PanelId);
  void (*get)(PanelId, int attribute, void* out);
  void (*set)(PanelId, int attribute, void* value);
  LWControl* (*addControl)(PanelId, const char* kind, LWPanControlDesc*, const char* label);
  GapSlot gap_72[2];
  void* user_data;
  GlobalFunc globalFun;  // written by the module
  GapSlot gap_104[3];
};
static_assert(sizeof(LWPanelFuncs) == 128);
static_assert(offsetof(LWPanelFuncs, destroy) == 8);
static_assert(offsetof(LWPanelFuncs, open) == 16);
static_assert(offsetof(LWPanelFuncs, draw) == 32);
static_assert(offsetof(LWPanelFuncs, close) == 40);
static_assert(offsetof(LWPanelFuncs, get) == 48);
static_assert(offsetof(LWPanelFuncs, set) == 56);
static_assert(offsetof(LWPanelFuncs, addControl) == 64);
static_assert(offsetof(LWPanelFuncs, user_data) == 88);
static_assert(offsetof(LWPanelFuncs, globalFun) == 96);

// Numbers travel as the address of an int; hooks and user data are the pointer itself.
enum PanelAttribute : int {
  kPanelWidth = 2,
  kPanelHeight = 3,
  kPanelMouseX = 4,
  kPanelMouseY = 5,
  kPanelOpenHook = 9,
  kPanelCloseHook = 10,
  kPanelUserData = 12,
  kPanelMouseButtonHook = 15,
  kPanelMouseMoveHook = 16,
  kPanelQualifiers = 22,
  kPanelToFront = 23,
  kPanelMouseWheelHook = 24,
  kPanelResizeHook = 25,
  kPanelLeastWidth = 26,
  kPanelLeastHeight = 27,
  kPanelGreatestWidth = 28,
  kPanelGreatestHeight = 29,
};

// Pointers (draw and event callback, user data) travel in the pointer member of the value.
enum ControlAttribute : int {
  kControlX = 0,
  kControlY = 1,
  kControlWidth = 2,  // with label and padding
  kControlHeight = 3,
  kControlValue = 4,
  kControlHotX = 5,
  kControlHotY = 6,
  kControlHotWidth = 7,
  kControlHotHeight = 8,
  kControlLabelWidth = 9,
  kControlMouseX = 10,
  kControlMouseY = 11,
  kControlFlags = 12,
  kControlDrawCallback = 13,
  kControlEventCallback = 14,
  kControlLabel = 15,  // a text
  kControlUserData = 16,
  kControlMouseButton = 22,
  kControlClickCount = 24,
};

enum ControlFlags : int { kControlErased = 0x200 };

enum DrawMode : int { kDrawErase = 0, kDrawRender = 1, kDrawRefresh = 3 };
enum PanelOpenFlags : int {
  kOpenMouse = 8,
  kOpenNoButtons = 64,
  kOpenResizable = 128,
  kOpenMouseMotion = 256,
};
enum MouseBits : int {
  kMouseCtrl = 1,
  kMouseShift = 2,
  kMouseAlt = 4,
  kMouseLeft = 32,
  kMouseMiddle = 64,
  kMouseRight = 96,
  kMouseDown = 128,
};

using ControlEvent = void (*)(LWControl*, void* user);
using ControlDraw = void (*)(LWControl*, void* user, int mode);
using PanelHook = void (*)(PanelId, void* user);
using PanelMouseHook = void (*)(PanelId, void* user, int bits, int x, int y);
using PanelResizeHook = void (*)(PanelId, void* user, int width, int height);

// ---------------------------------------------------------------------------------------------------------------------
// Layout

// "LW Command Interface" is this function itself. Non-zero = accepted. Its text is in the host's narrow encoding, unlike all
// other texts of the interface.
using CommandFunc = int (*)(const char* command);

enum ItemType : int { kItemObject = 0, kItemLight = 1, kItemCamera = 2, kItemBone = 3 };
enum ItemParam : int {
  kParamPosition = 1,
  kParamRight = 2,  // world axes, their lengths the world scale
  kParamUp = 3,
  kParamForward = 4,
  kParamRotation = 5,  // heading, pitch, bank in radians
  kParamScale = 6,
  kParamPivot = 7,
  kParamWorldPosition = 8,
  kParamPivotRotation = 12,
};

// "LW Item Info 9"
struct LWItemInfo {
  ItemId (*first)(int type, ItemId object);
  ItemId (*next)(ItemId);
  GapSlot gap_16[2];
  ItemId (*parent)(ItemId);
  ItemId (*target)(ItemId);
  ItemId (*goal)(ItemId);
  int (*type)(ItemId);
  const char* (*name)(ItemId);
  void (*param)(ItemId, int param, double time, double* out);
  unsigned (*limits)(ItemId, int param, double low[3], double high[3]);
  GapSlot gap_88[2];
  GroupId (*chanGroup)(ItemId);
  const char* (*server)(ItemId, const char* className, int index);  // counted from 1
  GapSlot gap_120;
  void (*controller)(ItemId, int param, int kinds[3]);
  unsigned (*flags)(ItemId);
  GapSlot gap_144[6];
  unsigned (*goalObjective)(ItemId);
  GapSlot gap_200;
  unsigned (*ikInitialState)(ItemId);
  GapSlot gap_216;
  unsigned (*ikSoft)(ItemId, double time, unsigned* distance, double* least, double* greatest);
  ItemId (*pole)(ItemId);
  ItemId (*sameItem)(ItemId, int param);
  GapSlot gap_248[9];
  int (*rotationOrder)(ItemId);
  GapSlot gap_328;
};
static_assert(sizeof(LWItemInfo) == 336);
static_assert(offsetof(LWItemInfo, next) == 8);
static_assert(offsetof(LWItemInfo, parent) == 32);
static_assert(offsetof(LWItemInfo, target) == 40);
static_assert(offsetof(LWItemInfo, goal) == 48);
static_assert(offsetof(LWItemInfo, type) == 56);
static_assert(offsetof(LWItemInfo, name) == 64);
static_assert(offsetof(LWItemInfo, param) == 72);
static_assert(offsetof(LWItemInfo, limits) == 80);
static_assert(offsetof(LWItemInfo, chanGroup) == 104);
static_assert(offsetof(LWItemInfo, server) == 112);
static_assert(offsetof(LWItemInfo, controller) == 128);
static_assert(offsetof(LWItemInfo, flags) == 136);
static_assert(offsetof(LWItemInfo, goalObjective) == 192);
static_assert(offsetof(LWItemInfo, ikInitialState) == 208);
static_assert(offsetof(LWItemInfo, ikSoft) == 224);
static_assert(offsetof(LWItemInfo, pole) == 232);
static_assert(offsetof(LWItemInfo, sameItem) == 240);
static_assert(offsetof(LWItemInfo, rotationOrder) == 320);

// "LW Object Info 14"
struct LWObjectInfo {
  const char* (*filename)(ItemId);  // of a null object: null or empty
  GapSlot gap_8[11];
  ItemId (*boneSource)(ItemId);  // the object whose bones deform this one
  GapSlot gap_104[22];
  int (*layerLoaded)(ItemId);
  GapSlot gap_288[11];
  unsigned (*boneMode)(ItemId);  // 0 full, 1 faster, 2 limited
  unsigned (*numLimitedBones)(ItemId);
  GapSlot gap_392[2];
};
static_assert(sizeof(LWObjectInfo) == 408);
static_assert(offsetof(LWObjectInfo, boneSource) == 96);
static_assert(offsetof(LWObjectInfo, layerLoaded) == 280);
static_assert(offsetof(LWObjectInfo, boneMode) == 376);
static_assert(offsetof(LWObjectInfo, numLimitedBones) == 384);

// "LW Bone Info 7"
struct LWBoneInfo {
  unsigned (*flags)(ItemId);
  GapSlot gap_8[3];
  const char* (*weightMap)(ItemId);  // with none: null or empty
  double (*strength)(ItemId);
  int (*falloff)(ItemId);  // counts from 0
  GapSlot gap_56[2];
  int (*type)(ItemId);
  GapSlot gap_80[6];
};
static_assert(sizeof(LWBoneInfo) == 128);
static_assert(offsetof(LWBoneInfo, weightMap) == 32);
static_assert(offsetof(LWBoneInfo, strength) == 40);
static_assert(offsetof(LWBoneInfo, falloff) == 48);
static_assert(offsetof(LWBoneInfo, type) == 72);

enum BoneFlags : unsigned {
  kBoneActive = 0x1,
  kBoneLimitedRange = 0x2,
  kBoneStrengthMultiply = 0x4,
  kBoneWeightMapOnly = 0x8,
  kBoneWeightNormalization = 0x10,
  kBoneJointComp = 0x20,
  kBoneJointCompParent = 0x40,
  kBoneMuscleFlex = 0x80,
  kBoneMuscleFlexParent = 0x100,
  kBoneTwist = 0x200,
  kBoneBulge = 0x400,
  kBoneBulgeParent = 0x800,
};

enum ItemFlags : unsigned {
  kItemUnaffectedByIK = 0x2,
  kItemFullTimeIK = 0x4,
  kItemMatchGoalOrientation = 0x8,
  kItemKeepGoalInReach = 0x10,
  kItemUseIKChain = 0x20,
};

// "LW Interface Info 8". Describes the moment it was asked for: ask again after a command.
struct LWInterfaceInfo {
  double gap_0;
  const ItemId* selItems;  // ended by a null item
  GapSlot gap_16;
  int gap_24[4];
  GapSlot gap_40;
  int (*itemVis)(ItemId);
  unsigned gap_56;
  unsigned generalFlags;
  int gap_64[2];
  int (*itemColor)(ItemId);
  GapSlot gap_80[2];
  int gap_96[2];
  GapSlot gap_104[4];
};
static_assert(sizeof(LWInterfaceInfo) == 136);
static_assert(offsetof(LWInterfaceInfo, selItems) == 8);
static_assert(offsetof(LWInterfaceInfo, itemVis) == 48);
static_assert(offsetof(LWInterfaceInfo, generalFlags) == 60);
static_assert(offsetof(LWInterfaceInfo, itemColor) == 72);

enum GeneralFlags : unsigned {
  kGeneralParentInPlace = 0x4,
  kGeneralIK = 0x80,
  kGeneralMotionControllers = 0x800,
};

// "LW Time Info". Ask again whenever a current value is needed.
struct LWTimeInfo {
  double time;
  int frame;
};
static_assert(sizeof(LWTimeInfo) == 16);
static_assert(offsetof(LWTimeInfo, frame) == 8);

// "Channel Info 3". Walks start with a null `previous` and end with null.
struct LWChannelInfo {
  GroupId (*nextGroup)(GroupId parent, GroupId previous);
  ChannelId (*nextChannel)(GroupId, ChannelId previous);
  const char* (*groupName)(GroupId);
  const char* (*channelName)(ChannelId);
  GapSlot gap_32[4];
  EnvelopeId (*channelEnvelope)(ChannelId);
  GapSlot gap_72[6];
};
static_assert(sizeof(LWChannelInfo) == 120);
static_assert(offsetof(LWChannelInfo, nextChannel) == 8);
static_assert(offsetof(LWChannelInfo, groupName) == 16);
static_assert(offsetof(LWChannelInfo, channelName) == 24);
static_assert(offsetof(LWChannelInfo, channelEnvelope) == 64);

enum KeyTag : int { kKeyValue = 0, kKeyTime = 1 };

// "Animation Envelopes 4"
struct LWEnvelopeFuncs {
  GapSlot gap_0[10];
  KeyId (*createKey)(EnvelopeId, double time, double value);
  GapSlot gap_88;
  KeyId (*findKey)(EnvelopeId, double time);
  KeyId (*nextKey)(EnvelopeId, KeyId);  // null gives the first key; null at the end
  GapSlot gap_112;
  int (*keySet)(EnvelopeId, KeyId, int tag, void* value);  // non-zero = done
  int (*keyGet)(EnvelopeId, KeyId, int tag, void* value);
  GapSlot gap_136[4];
};
static_assert(sizeof(LWEnvelopeFuncs) == 168);
static_assert(offsetof(LWEnvelopeFuncs, createKey) == 80);
static_assert(offsetof(LWEnvelopeFuncs, findKey) == 96);
static_assert(offsetof(LWEnvelopeFuncs, nextKey) == 104);
static_assert(offsetof(LWEnvelopeFuncs, keySet) == 120);
static_assert(offsetof(LWEnvelopeFuncs, keyGet) == 128);

static_assert(sizeof(void*) == 8 && sizeof(int) == 4 && sizeof(double) == 8, "the host runs on 64-bit machines only");

}  // namespace lw
