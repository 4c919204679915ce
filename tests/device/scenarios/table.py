"""All scenarios, in the order in which they run."""

from scenarios import device, measuring, plugging, power, scarce, screens, touching

# Which machine each needs: the names of run.py's MACHINES.
SCENARIOS = (
    ("first-frame",          "panel", measuring.first_frame),
    ("every-screen",         "panel", touching.every_screen),
    ("every-keypad",         "panel", touching.every_keypad),
    ("range-is-kept",        "panel", touching.range_is_kept),
    ("two-fingers",          "panel", touching.two_fingers),
    ("slides-off",           "panel", touching.slides_off),
    ("quick-and-long",       "panel", touching.quick_and_long),
    ("list-is-paged",        "panel", touching.list_is_paged),
    ("parameter-is-changed", "panel", touching.parameter_is_changed),
    ("touch-to-pixel",       "panel", measuring.touch_to_pixel),
    ("frame-rate",           "panel", measuring.frame_rate),
    ("idle",                 "panel", measuring.idle),
    ("keyboard",             "panel", plugging.keyboard_comes_and_goes),
    ("twenty-plugs",         "panel", plugging.twenty_plugs),
    ("storm",                "panel", plugging.storm_under_a_keypad),
    ("nobody-forges",        "panel", plugging.nobody_forges),
    ("memory",               "panel", measuring.memory),
    ("whole-device",         "panel", device.whole_device),
    ("device-is-told",       "panel", device.device_is_told),
    ("power-cut",            "power", power.cut_while_rewriting),
    ("power-cut-for-real",   "power", power.cut_for_real),
    ("found-at-the-start",   "small", plugging.found_at_the_start),
    ("mouse-and-storage",    "small", plugging.mouse_and_storage_stay_noted),
    ("small-screen",         "small", screens.shows_the_corner),
    ("wide-screen",          "wide",  screens.shows_the_corner),
    ("little-memory",        "wide",  scarce.little_memory),
)  # fmt: skip
