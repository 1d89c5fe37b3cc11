# What is compiled into the program: pictures, the style sheet of the whole window, the web addresses.
set(zandrove_icons
    arrow-left arrow-right cable cable-gray cable-white check checkbox-checked checkbox-partial checkbox-unchecked
    chevron-down chevron-right close computer desktop documents downloads drive folder maximize minimize monitor music
    pause pictures refresh settings user videos wifi wifi-gray wifi-white app)
list(TRANSFORM zandrove_icons PREPEND ${CMAKE_SOURCE_DIR}/resources/icons/)
list(TRANSFORM zandrove_icons APPEND .svg)

qt_add_resources(zandrove_ui looks PREFIX / BASE ${CMAKE_SOURCE_DIR}/resources
    FILES ${zandrove_icons} ${CMAKE_SOURCE_DIR}/resources/icons/app.ico ${CMAKE_SOURCE_DIR}/resources/styles/style.qss)
qt_add_resources(zandrove_links links PREFIX / BASE ${CMAKE_SOURCE_DIR}/resources
    FILES ${CMAKE_SOURCE_DIR}/resources/links/links.json)
