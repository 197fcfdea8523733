#include "minihost/suites/CallLog.h"

#include "minihost/model/JsonWriter.h"

namespace minihost {

std::size_t CallLog::begin(const CallName& name, const std::string& arguments) {
    const std::size_t number = _written + _pending.size() + 1;
    Line line;
    JsonWriter json(line.text);
    json.begin_object().member("n", number).member("suite", name.suite);
    json.member("version", name.version).member("call", name.call);
    line.text += ", \"args\": " + arguments;
    _pending.push_back(std::move(line));
    return number;
}

void CallLog::end(std::size_t call, std::int32_t result) {
    Line& line = _pending[call - _written - 1];
    line.text += ", \"result\": " + std::to_string(result) + "}\n";
    line.complete = true;
    for (; !_pending.empty() && _pending.front().complete; ++_written) {
        if (_sink) _sink(_pending.front().text);
        _pending.pop_front();
    }
}

} // namespace minihost
