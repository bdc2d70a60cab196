#include "fuzz/JsonMutation.h"

#include "fuzz/Mutation.h"

#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace tembra {

namespace {

constexpr std::array<std::string_view, 36> numbers{
    "0",          "-0.0",        "1",      "-1",       "0.5",     "2",
    "3",          "7.9",         "8",      "16",       "28",      "99",
    "100",        "256",         "257",    "1024",     "9999",    "32768",
    "65535",      "100000",      "100001", "999999.9", "1000000", "-1000000",
    "1e-3",       "1e-9",        "1e-300", "5e-324",   "1000001", "1e9",
    "2147483647", "-2147483648", "1e308",  "-1e308",   "1e400",   "-9223372036854775808"};

struct Place {
    std::size_t start = 0;
    std::size_t length = 0;
};

std::vector<Place> numbersIn(std::string_view json) {
    constexpr std::string_view characters = "+-.0123456789eE";
    std::vector<Place> places;
    for (std::size_t at = json.find_first_of("-0123456789"); at != std::string_view::npos;
         at = json.find_first_of("-0123456789", at)) {
        const std::size_t end = std::min(json.find_first_not_of(characters, at), json.size());
        if (at > 0 && std::string_view(" :,[\n").find(json[at - 1]) != std::string_view::npos)
            places.push_back({at, end - at});
        at = end;
    }
    return places;
}

} // namespace

std::size_t mutateJson(std::uint8_t *data, std::size_t size, std::size_t room, unsigned seed) {
    std::minstd_rand random(seed);
    std::string json(reinterpret_cast<const char *>(data), size);
    const auto places = numbersIn(json);
    if (places.empty() || random() % 3 == 0)
        return LLVMFuzzerMutate(data, size, room);
    const Place place = places[random() % places.size()];
    const auto value = random() % 4 == 0 ? std::to_string(static_cast<int>(random() % 2'000) - 500)
                                         : std::string(numbers[random() % numbers.size()]);
    json.replace(place.start, place.length, value);
    if (json.size() > room)
        return LLVMFuzzerMutate(data, size, room);
    std::ranges::copy(json, data);
    return json.size();
}

} // namespace tembra
