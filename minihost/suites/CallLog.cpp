#include "minihost/suites/CallLog.h"

#include "minihost/model/JsonWriter.h"

namespace minihost {

std::size_t CallLog::begin(const CallName& name, std::string arguments) {
    const std::size_t number = _written + _waiting.size() + 1;
    Line line;
    JsonWriter json(line.text);
    json.begin_object().member("n", number).member("suite", name.suite);
    json.member("version", name.version).member("call", name.call);
    line.text += ", \"args\": " + arguments;
    _waiting.push_back(std::move(line));
    return number;
}

void CallLog::end(std::size_t call, std::int32_t result) {
    Line& line = _waiting[call - _written - 1];
    line.text += ", \"result\": " + std::to_string(result) + "}\n";
    line.whole = true;
    for (; !_waiting.empty() && _waiting.front().whole; ++_written) {
        if (_sink) _sink(_waiting.front().text);
        _waiting.pop_front();
    }
}

} // namespace minihost
