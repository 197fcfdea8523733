#include "minihost/CommandLine.h"

#include "minihost/actions/Actions.h"
#include "minihost/model/OutputFile.h"
#include "minihost/model/SceneReader.h"
#include "minihost/preview/Preview.h"
#include "minihost/suites/SuiteTable.h"
#include "minihost/window/WindowLayout.h"

#include <CLI/CLI.hpp>
#include <cstdio>

namespace minihost {

namespace {

std::string action_help() {
    std::string text = "Actions, one a line:\n";
    for (const Action& action : actions()) {
        std::string head = std::string("  ") + action.name + " " + action.arguments;
        head.resize(std::max<std::size_t>(head.size() + 1, 26), ' ');
        text += head + action.sentence + "\n";
    }
    return text;
}

std::string misbehaviour_help() {
    std::string text = "With --misbehave the host\n";
    for (const Misbehaviour& it : misbehaviours()) {
        std::string head = std::string("  ") + it.word;
        head.resize(26, ' ');
        text += head + it.sentence + "\n";
    }
    return text;
}

std::string without_words() {
    std::string names;
    for (const Suite& suite : suites())
        if (suite.without) names += (names.empty() ? "" : ", ") + std::string(suite.without);
    return names;
}

// Arguments that become HostOptions.
struct HostArguments {
    std::vector<std::string> failures, without, misbehaviours;
    std::string palette = "dark";
};

// The options that all verbs but `check` have.
void add_options(CLI::App& verb, Request& request, HostArguments& host) {
    verb.add_option("SCENE", request.scene, "the scene file")->required();
    verb.add_option("--plugin", request.plugin,
                    "the module to load (default: the one beside this program)")
        ->type_name("FILE");
    verb.add_option("--out", request.out, "write the final scene")->type_name("FILE");
    verb.add_option("--preview", request.preview, preview_help)->type_name("FILE");
    verb.add_option("--panel", request.panel, "picture of the dialog; .png")->type_name("FILE");
    verb.add_option("--scale", request.scale, "pixels per point in pictures (default 2)")
        ->type_name("N");
    verb.add_option("--palette", host.palette,
                    "the host's interface colours: dark (default), light")
        ->type_name("NAME");
    verb.add_option("--calls", request.calls, "log of the plug-in's calls, one JSON object a line")
        ->type_name("FILE");
    verb.add_option("--without", host.without, "a host without it, one of: " + without_words())
        ->type_name("WHAT")
        ->allow_extra_args(false);
    verb.add_option("--fail", host.failures,
                    "the K-th call (default 1) of that name returns CODE (default 4)")
        ->type_name("SUITE.CALL[:K[:CODE]]")
        ->allow_extra_args(false);
    verb.add_option("--misbehave", host.misbehaviours,
                    "a host that corrupts the K-th result of a kind, or every one, or changes its "
                    "scene before the K-th call; see below")
        ->type_name("WHAT[:K]")
        ->allow_extra_args(false);
}

void add_check_options(CLI::App& verb, Request& request) {
    CheckOptions& check = request.check;
    verb.add_option("SCENE", request.scene, "the scene file (default: a built-in one)");
    verb.add_option("--plugin", request.plugin,
                    "the module to check (default: the one beside this program)")
        ->type_name("FILE");
    verb.add_flag("--list", check.list, "print the checks and exit");
    verb.add_option("--only", check.only, "run only this check; may be repeated")
        ->type_name("ID")
        ->allow_extra_args(false);
    verb.add_option("--level", check.level, "thoroughness from 1 to 10 (default 5)")
        ->check(CLI::Range(1, 10))
        ->type_name("N");
    verb.add_option("--seed", check.seed, "of the random users (default 1)")->type_name("N");
    verb.add_option("--json", check.json, "write a report")->type_name("FILE");
}

void check_window(Request& request) {
    if (!request.window_size.empty()) {
        char rest = 0;
        if (std::sscanf(request.window_size.c_str(), "%lfx%lf%c", &request.window_width,
                        &request.window_height, &rest) != 2 ||
            !(request.window_width >= least_window_width && request.window_width <= max_size &&
              request.window_height >= least_window_height && request.window_height <= max_size))
            throw std::invalid_argument("--window: \"" + request.window_size +
                                        "\" is no WIDTHxHEIGHT from 900x600");
    }
    if (request.frames < 0) throw std::invalid_argument("--frames must be from 1");
    if (!request.screenshot.empty() && extension_of(request.screenshot) != ".png")
        throw std::invalid_argument("--screenshot: " + request.screenshot +
                                    ": a screenshot is written as .png");
    // The desktop takes a long time to refuse such a window.
    if (request.verb == Verb::Show && request.has_scale &&
        !(request.scale >= 0.5 && request.scale <= 4))
        throw std::invalid_argument("--scale of a window must be from 0.5 to 4");
}

// Checks that the library does not do. Throws std::invalid_argument.
void check(Request& request, const HostArguments& host) {
    for (const std::string& text : request.sets)
        if (text.find('=') == std::string::npos || text[0] == '=')
            throw std::invalid_argument("--set: \"" + text + "\" is not NAME=VALUE");
    for (const std::string& text : host.failures) {
        request.host.failures.push_back(parse_failure(text));
        if (!is_host_call(request.host.failures.back().call))
            throw std::invalid_argument("\"" + text + "\": the host has no such call (one is \"" +
                                        "AEGP Stream Suite.SetStreamValue\")");
    }
    for (const std::string& text : host.misbehaviours)
        request.host.misbehaviours.push_back(parse_misbehaviour(text));
    for (const std::string& word : host.without) {
        if (!is_without_word(word))
            throw std::invalid_argument("--without: \"" + word + "\" is none of " +
                                        without_words());
        request.host.without.insert(word);
    }
    const auto colors = palette_of_name(host.palette);
    if (!colors)
        throw std::invalid_argument("--palette: \"" + host.palette +
                                    "\" is neither dark nor light");
    request.host.palette = *colors;
    if (!(request.scale >= least_preview_scale && request.scale <= greatest_preview_scale))
        throw std::invalid_argument("--scale must be from 0.1 to 16");
    if (!request.preview.empty() && extension_of(request.preview) != ".png" &&
        extension_of(request.preview) != ".svg")
        throw std::invalid_argument("--preview: " + request.preview +
                                    ": a preview is written as .png or .svg");
    if (!request.panel.empty() && extension_of(request.panel) != ".png")
        throw std::invalid_argument("--panel: " + request.panel +
                                    ": the panel's picture is written as .png");
}

} // namespace

ParsedCommandLine parse_command_line(int count, const char* const* arguments) {
    Request request;
    HostArguments host;
    CLI::App app(
        "A small host for compositing plug-ins: it loads one, gives it a scene and acts as its "
        "user.",
        "minihost");
    app.set_version_flag("--version", "minihost " MINIHOST_VERSION);
    app.require_subcommand(1);
    app.footer(action_help());
    CLI::App* apply = app.add_subcommand(
        "apply", "Opens the dialog, sets controls, presses Apply, makes one idle call");
    CLI::App* run = app.add_subcommand("run", "Plays a file of actions");
    add_options(*apply, request, host);
    apply->add_option("--set", request.sets, "set a control before applying; may be repeated")
        ->type_name("NAME=VALUE")
        ->allow_extra_args(false);
    add_options(*run, request, host);
    run->add_option("ACTIONS", request.actions, "the file of actions; \"-\": standard input")
        ->required();
    apply->footer(misbehaviour_help());
    run->footer(action_help() + "\n" + misbehaviour_help());
    CLI::App* check_verb = app.add_subcommand("check", "Checks the plug-in and reports what fails");
    add_check_options(*check_verb, request);
    CLI::App* show = app.add_subcommand("show", "Opens a window in which the plug-in is used");
    add_options(*show, request, host);
    show->get_option("--scale")->description("pixels per point of the screen (default: its own)");
    show->add_option("--window", request.window_size,
                     "its size in points (default 1280x800, or as large as the screen)")
        ->type_name("WIDTHxHEIGHT");
    show->add_option("--frames", request.frames, "exit after N frames")->type_name("N");
    show->add_option("--screenshot", request.screenshot, "picture of the last frame; .png")
        ->type_name("FILE");
    show->footer(misbehaviour_help());
    try {
        app.parse(count, const_cast<char**>(arguments));
        if (run->parsed()) request.verb = Verb::Run;
        if (show->parsed()) request.verb = Verb::Show;
        if (check_verb->parsed()) request.verb = Verb::Check;
        request.has_scale = show->count("--scale") > 0;
        check_window(request);
        check(request, host);
    } catch (const CLI::ParseError& error) {
        return {std::nullopt, app.exit(error) == 0 ? 0 : 2};
    } catch (const std::invalid_argument& error) {
        std::fprintf(stderr, "minihost: %s\n", error.what());
        return {std::nullopt, 2};
    }
    return {std::move(request), 0};
}

} // namespace minihost
