// The words of what a cast member can be set to; a setting is its place in the table.
#pragma once

inline constexpr const char* kCastEntries[] = {
    "中央からカットイン",
    "中央からフェードイン",
    "指定位置からカットイン",
    "指定位置からフェードイン",
    "ドアから登場",
    "左端 + 指定位置X, 立ち位置Y=下端",
    "右端 - 指定位置X, 立ち位置Y=下端",
    "上端 - 指定位置Y, X=ランダム位置",
    "下端 + 指定Y, X=ランダム位置",
    "左端-指定X, Y=ランダム位置",
    "右端+指定X, Y=ランダム位置",
    "ランダム位置に登場",
    "同期キャラクタ位置の+X,+Y",
    "同期キャラクタ位置の-X,+Y",
    "同期キャラクタ位置の+X,-Y",
    "同期キャラクタ位置の-X,-Y",
};

inline constexpr const char* kCastExits[] = {
    "中央からカットアウト",
    "中央からフェードアウト",
    "ドアから",
    "中央から",
    "左下端から",
    "右下端から",
    "上部ランダム位置",
    "下部ランダム位置",
    "左横ランダム位置",
    "右横ランダム位置",
    "ランダム位置",
    "現在位置で消える",
};

inline constexpr const char* kCastLineEnds[] = {"未指定", "一定時間", "リターンキー", "スペースキー",
                                                "何れかのキー"};

inline constexpr const char* kCastDepths[] = {"レベル0 = 立ち位置に比例", "レベル1 = (後ろ)",
                                              "レベル2 = (中)", "レベル3 = (手前)"};

inline constexpr const char* kCastCollisions[] = {
    "特に設定しない",
    "レベルが同じキャラクタの衝突で反対方向に移動",
    "レベルが同じキャラクタの衝突で停止",
    "設定レベル以下の衝突で相手移動に同期",
    "レベルが同じキャラクタ衝突で相手移動に同期",
};

inline constexpr const char* kCastDoorModes[] = {"ドア中開き", "ドア左右開き"};
inline constexpr const char* kCastWindowModes[] = {"窓中開き", "窓左右開き", "窓上下開き"};
