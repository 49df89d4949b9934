// SPDX-License-Identifier: MIT
// Labels of the reports, in GBK. Written as escapes so that no compiler has to be told what
// encoding a source file has; the comment says how each reads.
#pragma once

namespace tovi::flat::label {

inline constexpr char kStartTime[] = "\xBF\xAA\xCA\xBC\xCA\xB1\xBC\xE4:";       // 开始时间:
inline constexpr char kEndTime[] = " \xBD\xE1\xCA\xF8\xCA\xB1\xBC\xE4:";        //  结束时间:
inline constexpr char kPlayIdOfEntry[] = " \xB2\xA5\xB7\xC5id:";                //  播放id:
inline constexpr char kBrightnessOfEntry[] = " \xC1\xC1\xB6\xC8\xD6\xB5:";      //  亮度值:
inline constexpr char kBrightnessMode[] = "\xC1\xC1\xB6\xC8\xC4\xA3\xCA\xBD:";  // 亮度模式:
inline constexpr char kEnvironmentBrightness[] = "\xBB\xB7\xBE\xB3\xC1\xC1\xB6\xC8:";  // 环境亮度:
inline constexpr char kScreenBrightness[] = "\xC6\xC1\xC4\xBB\xC1\xC1\xB6\xC8:";  // 屏幕亮度:
inline constexpr char kPointBrightness[] = "\xC6\xC1\xCC\xE5\xC1\xC1\xB6\xC8:";   // 屏体亮度:
inline constexpr char kPoint[] = "\xB5\xDA";                                      // 第
inline constexpr char kPointEnd[] = "\xD7\xE9:";                                  // 组:
inline constexpr char kCloseTemperature[] =
    "\xB8\xDF\xCE\xC2\xB9\xD8\xC6\xC1\xCE\xC2\xB6\xC8:";              // 高温关屏温度:
inline constexpr char kTemperature[] = "\xCE\xC2\xB6\xC8:";           // 温度:
inline constexpr char kErrorCode[] = "\xB4\xED\xCE\xF3\xC2\xEB:";     // 错误码:
inline constexpr char kCpuUsage[] = " CPU\xCA\xB9\xD3\xC3\xC2\xCA:";  //  CPU使用率:
inline constexpr char kDiskTotal[] = " \xD3\xB2\xC5\xCC\xD7\xDC\xB4\xF3\xD0\xA1:";  //  硬盘总大小:
inline constexpr char kDiskFree[] =
    " \xD3\xB2\xC5\xCC\xCA\xA3\xD3\xE0\xB4\xF3\xD0\xA1:";  //  硬盘剩余大小:
inline constexpr char kMemoryTotal[] = "\xD7\xDC\xC4\xDA\xB4\xE6\xB4\xF3\xD0\xA1:";  // 总内存大小:
inline constexpr char kMemoryFree[] =
    "\xCA\xA3\xD3\xE0\xC4\xDA\xB4\xE6\xB4\xF3\xD0\xA1:";  // 剩余内存大小:
inline constexpr char kNtpEnabled[] = "\xBF\xAA\xC6\xF4NTP\xB6\xD4\xCA\xB1:";  // 开启NTP对时:
inline constexpr char kNtpServer[] = "NTP\xB7\xFE\xCE\xF1\xC6\xF7:";           // NTP服务器:
inline constexpr char kWidth[] = "\xBF\xED:";                                  // 宽:
inline constexpr char kHeight[] = "\xB8\xDF:";                                 // 高:
inline constexpr char kWidthInLine[] = " \xBF\xED:";                           //  宽:
inline constexpr char kHeightInLine[] = " \xB8\xDF:";                          //  高:
inline constexpr char kFieldRate[] = " \xD6\xA1\xC2\xCA:";                     //  帧率:
inline constexpr char kVideoSource[] = " \xCA\xD3\xC6\xB5\xD4\xB4:";           //  视频源:
inline constexpr char kTime[] = "\xCA\xB1\xBC\xE4:";                           // 时间:
inline constexpr char kYear[] = "\xC4\xEA";                                    // 年
inline constexpr char kMonth[] = "\xD4\xC2";                                   // 月
inline constexpr char kDay[] = "\xC8\xD5";                                     // 日
inline constexpr char kHour[] = " \xCA\xB1";                                   //  时
inline constexpr char kMinute[] = "\xB7\xD6";                                  // 分
inline constexpr char kSecond[] = "\xC3\xEB";                                  // 秒
inline constexpr char kZoneId[] = "\xCA\xB1\xC7\xF8ID:";                       // 时区ID:
inline constexpr char kUtcOffset[] = "UTC\xC6\xAB\xD2\xC6:";                   // UTC偏移:
inline constexpr char kEnabled[] = "\xCA\xC7\xB7\xF1\xBF\xAA\xC6\xF4:";        // 是否开启:
inline constexpr char kInterval[] = " \xD1\xD3\xCA\xB1\xCA\xB1\xBC\xE4:";      //  延时时间:
inline constexpr char kProgram[] = " \xBD\xDA\xC4\xBFid:";                     //  节目id:
inline constexpr char kBadPoints[] = " \xBB\xB5\xB5\xE3\xCA\xFD:";             //  坏点数:

}  // namespace tovi::flat::label
