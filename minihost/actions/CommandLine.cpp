#include "minihost/actions/CommandLine.h"

#include "minihost/actions/Actions.h"
#include "minihost/suites/SuiteTable.h"
#include "minihost/view/preview.h"

#include <algorithm>
#include <CLI/CLI.hpp>
#include <cstdio>
#include <filesystem>

namespace minihost {

namespace {

bool has_extension(const std::string& path, std::initializer_list<const char*> extensions) {
    std::string extension = std::filesystem::path(path).extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return std::find(extensions.begin(), extensions.end(), extension) != extensions.end();
}

// The actions, for the help.
std::string action_help() {
    std::string text = "Actions, one a line:\n";
    for (const Action& action : actions()) {
        std::string head = std::string("  ") + action.name + " " + action.arguments;
        head.resize(std::max<std::size_t>(head.size() + 1, 26), ' ');
        text += head + action.sentence + "\n";
    }
    return text;
}

std::string missing_part_names() {
    std::string names;
    for (const Suite& suite : suites())
        if (suite.without) names += (names.empty() ? "" : ", ") + std::string(suite.without);
    return names;
}

// The options that every verb has.
void add_options(CLI::App& verb, Request& request, std::vector<std::string>& failures,
                 std::vector<std::string>& without, std::string& palette) {
    verb.add_option("SCENE", request.scene, "the scene file")->required();
    verb.add_option("--plugin", request.plugin,
                    "the module to load (default: the one beside this program)")
        ->type_name("FILE");
    verb.add_option("--out", request.out, "write the scene as it is at the end")->type_name("FILE");
    verb.add_option("--preview", request.preview, preview_help)->type_name("FILE");
    verb.add_option("--panel", request.panel, "picture of the dialog; .png")->type_name("FILE");
    verb.add_option("--scale", request.scale, "pixels per point in pictures (default 2)")
        ->type_name("N");
    verb.add_option("--palette", palette, "the host's interface colours: dark (default), light")
        ->type_name("NAME");
    verb.add_option("--calls", request.calls,
                    "every call that the plug-in made of the host, one JSON object a line")
        ->type_name("FILE");
    verb.add_option("--without", without, "a host that lacks it: " + missing_part_names())
        ->type_name("WHAT")
        ->allow_extra_args(false);
    verb.add_option("--fail", failures,
                    "the K-th call (default 1) of that name returns CODE (default 4)")
        ->type_name("SUITE.CALL[:K[:CODE]]")
        ->allow_extra_args(false);
}

// What the library cannot check by itself. Throws std::invalid_argument.
void check(Request& request, const std::vector<std::string>& failures,
           const std::vector<std::string>& without, const std::string& palette) {
    for (const std::string& text : request.sets)
        if (text.find('=') == std::string::npos || text[0] == '=')
            throw std::invalid_argument("--set: \"" + text + "\" is not NAME=VALUE");
    for (const std::string& text : failures) request.host.failures.push_back(parse_failure(text));
    for (const std::string& word : without) {
        if (!is_missing_part(word))
            throw std::invalid_argument("--without: \"" + word + "\" is none of " +
                                        missing_part_names());
        request.host.without.insert(word);
    }
    const auto colors = palette_of_name(palette);
    if (!colors)
        throw std::invalid_argument("--palette: \"" + palette + "\" is neither dark nor light");
    request.host.palette = *colors;
    if (!(request.scale >= least_preview_scale && request.scale <= greatest_preview_scale))
        throw std::invalid_argument("--scale must be from 0.1 to 16");
    if (!request.preview.empty() && !has_extension(request.preview, {".png", ".svg"}))
        throw std::invalid_argument("--preview: " + request.preview +
                                    ": a preview is written as .png or .svg");
    if (!request.panel.empty() && !has_extension(request.panel, {".png"}))
        throw std::invalid_argument("--panel: " + request.panel +
                                    ": the panel's picture is written as .png");
}

} // namespace

ParsedCommandLine parse_command_line(int count, const char* const* arguments) {
    Request request;
    std::vector<std::string> failures, without;
    std::string palette = "dark";
    CLI::App app(
        "A small host for compositing plug-ins: it loads one, serves it a scene, and plays "
        "what a user would do.",
        "minihost");
    app.set_version_flag("--version", "minihost " MINIHOST_VERSION);
    app.require_subcommand(1);
    app.footer(action_help());
    CLI::App* apply = app.add_subcommand(
        "apply", "Opens the dialog, sets controls, presses Apply, makes one idle call");
    CLI::App* run = app.add_subcommand("run", "Plays a file of actions");
    add_options(*apply, request, failures, without, palette);
    apply->add_option("--set", request.sets, "set a control before applying; may come often")
        ->type_name("NAME=VALUE")
        ->allow_extra_args(false);
    add_options(*run, request, failures, without, palette);
    run->add_option("ACTIONS", request.actions, "the file of actions; \"-\": standard input")
        ->required();
    run->footer(action_help());
    try {
        app.parse(count, const_cast<char**>(arguments));
        check(request, failures, without, palette);
    } catch (const CLI::ParseError& error) {
        return {std::nullopt, app.exit(error) == 0 ? 0 : 2};
    } catch (const std::invalid_argument& error) {
        std::fprintf(stderr, "minihost: %s\n", error.what());
        return {std::nullopt, 2};
    }
    request.verb = run->parsed() ? Verb::Run : Verb::Apply;
    return {std::move(request), 0};
}

} // namespace minihost
