// The positions of the pages and the ids of their controls.
#pragma once

// In the order of the sheet.
enum PagePosition : int {
  moonPage,
  messagesPage,
  backgroundPage,
  soundsPage,
  quotesPage,
  powerPage,
  startupPage,
  aboutPage,
  pageCount
};

// An id is unique on its page; 1006 stands on two of them.
namespace controlIds {

inline constexpr int none = -1;  // labels and frames that nobody asks for

inline constexpr int moonSmall = 1003;
inline constexpr int moonMedium = 1004;
inline constexpr int moonLarge = 1005;

inline constexpr int message = 1014;
inline constexpr int bottomLine = 1015;
inline constexpr int newMessage = 1016;
inline constexpr int deleteMessage = 1017;
inline constexpr int nextMessage = 1018;
inline constexpr int previousMessage = 1019;
inline constexpr int messagePosition = 1020;
inline constexpr int messageNote = 1021;

inline constexpr int starrySky = 1011;
inline constexpr int gradientBlue = 1012;
inline constexpr int black = 1013;
inline constexpr int darkBlue = 1014;

inline constexpr int lullaby = 1032;
inline constexpr int oceanWaves = 1033;
inline constexpr int sleepingWithTheOneILove = 1034;
inline constexpr int silence = 1035;
inline constexpr int sleepReminder = 1036;
inline constexpr int birds = 1037;
inline constexpr int feelingBlue = 1038;
inline constexpr int cookooEveryHour = 1039;

inline constexpr int love = 1026;
inline constexpr int wisdom = 1027;
inline constexpr int advice = 1028;
inline constexpr int peace = 1029;
inline constexpr int funny = 1030;
inline constexpr int womenVSMen = 1031;

inline constexpr int awakePermanently = 1006;
inline constexpr int runNormally = 1008;
inline constexpr int awake2Hours = 1009;
inline constexpr int awake8Hours = 1010;

inline constexpr int oldTelevision = 1006;
inline constexpr int noStartupEffect = 1007;

inline constexpr int about = 1025;

}  // namespace controlIds
