' Places a Vorlex bar without a form, sets up two blocks and reads them back.
Option Explicit
Dim bar
Set bar = CreateObject("VorlexLib.Vorlex")

bar.AddBlock
bar.AddBlock
bar.BlockKey(1) = "cpu"
bar.BlockBarRight("cpu") = 40
bar.BlockColor(2) = RGB(0, 128, 255)
bar.Caption = "Load"
bar.Font.Name = "Arial"
bar.BlockTextFont(2).Size = 12

WScript.Echo "Blocks: " & bar.Blocks
WScript.Echo "cpu ends at: " & bar.BlockBarRight("cpu")
WScript.Echo "Second block's colour: " & Hex(bar.BlockColor(2))
WScript.Echo "Caption font: " & bar.Font.Name
WScript.Echo "Second block's text size: " & bar.BlockTextFont(2).Size

' Errors arrive with Basic's numbers.
On Error Resume Next
bar.BlockColor(7) = 0
WScript.Echo "Error " & Err.Number & ": " & Err.Description
Err.Clear
bar.CaptionAngle = 40000
WScript.Echo "Error " & Err.Number & ": " & Err.Description
