#include "cli/argument.h"

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>

#include "cli/endpoint.h"
#include "cli/times.h"
#include "platform/paths.h"

namespace tovi::cli {
namespace {

template <class Read>
auto single(const std::string& name, const std::string& help, const Read& read) {
  using Value = decltype(read(std::string()));
  return Argument<Value>{
      name, help, [read](const std::vector<std::string>& words) { return read(words.front()); }};
}

std::string textOfFile(const std::string& path) {
  std::optional<std::string> content = readText(path);
  if (!content) throw Unusable("cannot read " + quoted(path));
  if (content->find('\0') != std::string::npos) throw Unusable(quoted(path) + " is no text");
  if (content->size() > kMostTextBytes) {
    throw Unusable(quoted(path) + " has more than " + std::to_string(kMostTextBytes) + " bytes");
  }
  return *std::move(content);
}

std::string readablePath(const std::string& path) {
  std::error_code error;
  const std::filesystem::path file = platform::pathOf(path);
  if (!std::filesystem::is_regular_file(file, error) || !std::ifstream(file)) {
    throw Unusable("cannot read " + quoted(path));
  }
  localPath(path);
  return path;
}

std::string writablePath(const std::string& path) {
  std::error_code error;
  const std::filesystem::path file = platform::pathOf(path);
  const std::filesystem::path folder = file.parent_path();
  if (path.empty() || std::filesystem::is_directory(file, error) ||
      (!folder.empty() && !std::filesystem::is_directory(folder, error))) {
    throw Unusable("cannot write " + quoted(path));
  }
  localPath(path);
  return path;
}

Moment momentOf(const std::string& text, const std::string& ending) {
  if (text == "now") return std::nullopt;
  Moment time;
  if (text.ends_with(ending)) time = parseTime(text.substr(0, text.size() - ending.size()));
  if (!time) {
    throw Unusable(quoted(text) + " is neither now nor a time as in 2024-03-01T08:00:00" + ending);
  }
  return time;
}

constexpr char kTimetableHelp[] =
    "as in 2024-03-01T08:00:00.\nFurther entries follow, up to 255; none empties the timetable";

}  // namespace

Argument<int> number(const std::string& name, const std::string& help, int least, int most) {
  return single(name, help, [least, most](const std::string& given) {
    return numberWithin(given, least, most);
  });
}

Argument<bool> onOff(const std::string& name, const std::string& help) {
  return single(name, help, [](const std::string& given) {
    if (given != "on" && given != "off") throw Unusable(quoted(given) + " is neither on nor off");
    return given == "on";
  });
}

Argument<std::string> text(const std::string& name, const std::string& help, std::size_t least,
                           std::size_t most) {
  return single(name, help, [least, most](const std::string& given) {
    if (given.size() < least || given.size() > most) {
      throw Unusable("a text of " + std::to_string(given.size()) + " bytes, where " +
                     std::to_string(least) + " to " + std::to_string(most) + " are taken");
    }
    return given;
  });
}

Argument<std::string> word(const std::string& name, const std::string& help) {
  return single(name, help, [](const std::string& given) {
    if (given.empty() || given.find_first_of(" \t\n\v\f\r,") != std::string::npos) {
      throw Unusable(quoted(given) + " is not one word without commas");
    }
    return given;
  });
}

Argument<std::string> digits(const std::string& name, const std::string& help) {
  return single(name, help, [](const std::string& given) {
    if (given.empty() || given.find_first_not_of("0123456789") != std::string::npos) {
      throw Unusable(quoted(given) + " is not all digits");
    }
    return given;
  });
}

Argument<std::string> ipv4(const std::string& name, const std::string& help) {
  return single(name, help, [](const std::string& given) {
    if (!isDottedIpv4(given)) throw Unusable(quoted(given) + " is no IPv4 address");
    return given;
  });
}

Argument<std::string> jsonArray(const std::string& name, const std::string& help) {
  return single(name, help, [](const std::string& given) {
    if (!nlohmann::json::parse(given, nullptr, false).is_array()) {
      throw Unusable(quoted(given) + " is no JSON array");
    }
    return given;
  });
}

Argument<std::string> inputFile(const std::string& name, const std::string& help) {
  return single(name, help, readablePath);
}

Argument<std::string> outputFile(const std::string& name, const std::string& help) {
  return single(name, help, writablePath);
}

Argument<std::string> fileText(const std::string& name, const std::string& help) {
  return single(name, help, textOfFile);
}

Argument<Moment> localMoment(const std::string& name, const std::string& help) {
  return single(name, help, [](const std::string& given) { return momentOf(given, ""); });
}

Argument<Moment> utcMoment(const std::string& name, const std::string& help) {
  return single(name, help, [](const std::string& given) { return momentOf(given, "Z"); });
}

Argument<std::vector<TimetableEntry>> timetable() {
  return {"START END", std::string("Times ") + kTimetableHelp,
          [](const std::vector<std::string>& words) { return parseTimetable(words, false); }, true};
}

Argument<std::vector<TimetableEntry>> timetable(const std::string& value, const std::string& help) {
  return {"START END " + value, help + ". Times " + kTimetableHelp,
          [](const std::vector<std::string>& words) { return parseTimetable(words, true); }, true};
}

Argument<std::vector<CurvePoint>> curve() {
  return {"AMBIENT SCREEN",
          "An ambient reading and the brightness at it, both 0 to 255.\n"
          "Further pairs follow, up to 8; missing ones are sent as 0 0",
          parseCurve, true};
}

}  // namespace tovi::cli
