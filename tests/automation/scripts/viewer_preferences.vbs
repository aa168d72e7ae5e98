Dim preferences
Set preferences = doc.ViewerPreferences
Say "PageLayout", preferences.PageLayout
Say "PageMode", preferences.PageMode
Say "FitWindow", preferences.FitWindow
Say "NonFullScreenPageMode", preferences.NonFullScreenPageMode

preferences.PageLayout = plsTwoColumnRight
preferences.PageMode = pmsUseNone
preferences.HideToolbar = True
preferences.HideMenubar = -1
preferences.HideWindowUI = "True"
preferences.FitWindow = 1
preferences.CenterWindow = True
Say "PageLayout", preferences.PageLayout
Say "PageMode", preferences.PageMode
Say "HideToolbar", preferences.HideToolbar
Say "HideMenubar", preferences.HideMenubar
Say "HideWindowUI", preferences.HideWindowUI
Say "FitWindow", preferences.FitWindow
Say "CenterWindow", preferences.CenterWindow

' Full screen is no mode to fall back to; other values are not checked.
preferences.NonFullScreenPageMode = pmsFullScreen
Say "NonFullScreenPageMode", preferences.NonFullScreenPageMode
preferences.NonFullScreenPageMode = pmsUseNone
Say "NonFullScreenPageMode", preferences.NonFullScreenPageMode
preferences.PageMode = 77
Say "PageMode", preferences.PageMode
Say "kept by the document", doc.ViewerPreferences.PageLayout
WScript.Echo "DONE"
