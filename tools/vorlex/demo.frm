VERSION 5.00
' The built-in demo of the vorlex tool (--demo): edit it here, the build compiles it in.
Begin VorlexLib.Vorlex Demo
   Blocks          =   16
   Block.BarLeft(1)=   1
   Block.BarRight(1)=   33
   Block.BarTop(1) =   83
   Block.BarBottom(1)=   58
   Block.BorderStyle(1)=   3
   Block.BorderWidth(1)=   2
   Block.Color(1)  =   &H00000000&
   Block.GradientStyle(1)=   5
   Block.GradientColor(1)=   &H00204020&
   Block.Text(1)   =   "!long time!"
   Block.TextColor(1)=   &H0040FF40&
   BeginProperty Block.TextFont(1) {0BE35203-8F91-11CE-9DE3-00AA004BB851}
      Name            =   "Tahoma"
      Size            =   16
      Charset         =   0
      Weight          =   700
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   Block.TextFont3D(1)=   4
   Block.RivetsStyle(1)=   1
   Block.BarLeft(2)=   1
   Block.BarRight(2)=   33
   Block.BarTop(2) =   54
   Block.BarBottom(2)=   28
   Block.BorderStyle(2)=   2
   Block.BorderWidth(2)=   2
   Block.BrushStyle(2)=   5
   Block.BrushColor(2)=   &H00604838&
   Block.Color(2)  =   &H00504030&
   Block.Text(2)   =   "!long date!"
   Block.TextColor(2)=   &H00FFFFFF&
   BeginProperty Block.TextFont(2) {0BE35203-8F91-11CE-9DE3-00AA004BB851}
      Name            =   "Tahoma"
      Size            =   8
      Charset         =   0
      Weight          =   400
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   Block.BarLeft(3)=   35
   Block.BarRight(3)=   42
   Block.BarTop(3) =   83
   Block.BarBottom(3)=   28
   Block.BorderStyle(3)=   4
   Block.GradientStyle(3)=   8
   Block.GradientColor(3)=   &H00FFC040&
   Block.GradientColorEnd(3)=   &H00402010&
   Block.Text(3)   =   "LEVELS"
   Block.TextColor(3)=   &H00FFFFFF&
   BeginProperty Block.TextFont(3) {0BE35203-8F91-11CE-9DE3-00AA004BB851}
      Name            =   "Tahoma"
      Size            =   10
      Charset         =   0
      Weight          =   700
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   Block.TextFont3D(3)=   1
   Block.TextAngle(3)=   90
   Block.BarLeft(4)=   44
   Block.BarRight(4)=   46
   Block.BarTop(4) =   76
   Block.BarBottom(4)=   28
   Block.BorderStyle(4)=   1
   Block.Color(4)  =   &H0000C000&
   Block.GradientStyle(4)=   4
   Block.GradientGranularity(4)=   3
   Block.GradientColor(4)=   &H0000C000&
   Block.GradientColorEnd(4)=   &H000000E0&
   BeginProperty Block.TextFont(4) {0BE35203-8F91-11CE-9DE3-00AA004BB851}
      Name            =   "MS Sans Serif"
      Size            =   8.25
      Charset         =   0
      Weight          =   400
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   Block.BarLeft(5)=   47
   Block.BarRight(5)=   49
   Block.BarTop(5) =   55
   Block.BarBottom(5)=   28
   Block.BorderStyle(5)=   1
   Block.Color(5)  =   &H0000C000&
   Block.GradientStyle(5)=   4
   Block.GradientGranularity(5)=   3
   Block.GradientColor(5)=   &H0000C000&
   Block.GradientColorEnd(5)=   &H000000E0&
   BeginProperty Block.TextFont(5) {0BE35203-8F91-11CE-9DE3-00AA004BB851}
      Name            =   "MS Sans Serif"
      Size            =   8.25
      Charset         =   0
      Weight          =   400
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   Block.BarLeft(6)=   50
   Block.BarRight(6)=   52
   Block.BarTop(6) =   82
   Block.BarBottom(6)=   28
   Block.BorderStyle(6)=   1
   Block.Color(6)  =   &H0000C000&
   Block.GradientStyle(6)=   4
   Block.GradientGranularity(6)=   3
   Block.GradientColor(6)=   &H0000C000&
   Block.GradientColorEnd(6)=   &H000000E0&
   BeginProperty Block.TextFont(6) {0BE35203-8F91-11CE-9DE3-00AA004BB851}
      Name            =   "MS Sans Serif"
      Size            =   8.25
      Charset         =   0
      Weight          =   400
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   Block.BarLeft(7)=   53
   Block.BarRight(7)=   55
   Block.BarTop(7) =   40
   Block.BarBottom(7)=   28
   Block.BorderStyle(7)=   1
   Block.Color(7)  =   &H0000C000&
   Block.GradientStyle(7)=   4
   Block.GradientGranularity(7)=   3
   Block.GradientColor(7)=   &H0000C000&
   Block.GradientColorEnd(7)=   &H000000E0&
   BeginProperty Block.TextFont(7) {0BE35203-8F91-11CE-9DE3-00AA004BB851}
      Name            =   "MS Sans Serif"
      Size            =   8.25
      Charset         =   0
      Weight          =   400
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   Block.BarLeft(8)=   56
   Block.BarRight(8)=   58
   Block.BarTop(8) =   68
   Block.BarBottom(8)=   28
   Block.BorderStyle(8)=   1
   Block.Color(8)  =   &H0000C000&
   Block.GradientStyle(8)=   4
   Block.GradientGranularity(8)=   3
   Block.GradientColor(8)=   &H0000C000&
   Block.GradientColorEnd(8)=   &H000000E0&
   BeginProperty Block.TextFont(8) {0BE35203-8F91-11CE-9DE3-00AA004BB851}
      Name            =   "MS Sans Serif"
      Size            =   8.25
      Charset         =   0
      Weight          =   400
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   Block.BarLeft(9)=   60
   Block.BarRight(9)=   66
   Block.BarTop(9) =   84
   Block.BarBottom(9)=   60
   Block.ShapeStyle(9)=   1
   Block.Color(9)  =   &H000000E0&
   Block.GradientStyle(9)=   9
   Block.GradientColor(9)=   &H00FFFFFF&
   Block.GradientColorEnd(9)=   &H000000E0&
   BeginProperty Block.TextFont(9) {0BE35203-8F91-11CE-9DE3-00AA004BB851}
      Name            =   "MS Sans Serif"
      Size            =   8.25
      Charset         =   0
      Weight          =   400
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   Block.BarLeft(10)=   67
   Block.BarRight(10)=   73
   Block.BarTop(10)=   84
   Block.BarBottom(10)=   60
   Block.ShapeStyle(10)=   1
   Block.Color(10) =   &H0000A0FF&
   Block.GradientStyle(10)=   9
   Block.GradientColor(10)=   &H00FFFFFF&
   Block.GradientColorEnd(10)=   &H0000A0FF&
   BeginProperty Block.TextFont(10) {0BE35203-8F91-11CE-9DE3-00AA004BB851}
      Name            =   "MS Sans Serif"
      Size            =   8.25
      Charset         =   0
      Weight          =   400
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   Block.BarLeft(11)=   74
   Block.BarRight(11)=   80
   Block.BarTop(11)=   84
   Block.BarBottom(11)=   60
   Block.ShapeStyle(11)=   1
   Block.Color(11) =   &H0000C000&
   Block.GradientStyle(11)=   9
   Block.GradientColor(11)=   &H00FFFFFF&
   Block.GradientColorEnd(11)=   &H0000C000&
   BeginProperty Block.TextFont(11) {0BE35203-8F91-11CE-9DE3-00AA004BB851}
      Name            =   "MS Sans Serif"
      Size            =   8.25
      Charset         =   0
      Weight          =   400
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   Block.BarLeft(12)=   60
   Block.BarRight(12)=   80
   Block.BarTop(12)=   56
   Block.BarBottom(12)=   28
   Block.BorderStyle(12)=   7
   Block.GradientStyle(12)=   12
   Block.GradientColor(12)=   &H00000000&
   Block.GradientColorEnd(12)=   &H00808080&
   Block.Text(12)  =   "!short time!"
   Block.TextColor(12)=   &H00FFFFFF&
   BeginProperty Block.TextFont(12) {0BE35203-8F91-11CE-9DE3-00AA004BB851}
      Name            =   "Tahoma"
      Size            =   12
      Charset         =   0
      Weight          =   700
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   Block.TextFont3D(12)=   3
   Block.BarLeft(13)=   82
   Block.BarRight(13)=   99
   Block.BarTop(13)=   83
   Block.BarBottom(13)=   28
   Block.BorderStyle(13)=   2
   Block.BorderWidth(13)=   3
   Block.BrushStyle(13)=   6
   Block.BrushColor(13)=   &H00606060&
   Block.Color(13) =   &H00303030&
   Block.Text(13)  =   "!medium date!"
   Block.TextColor(13)=   &H00FFC040&
   Block.TextAlignment(13)=   6
   BeginProperty Block.TextFont(13) {0BE35203-8F91-11CE-9DE3-00AA004BB851}
      Name            =   "Tahoma"
      Size            =   8
      Charset         =   0
      Weight          =   400
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   Block.TextOffset(13)=   6
   Block.RivetsStyle(13)=   4
   Block.BarLeft(14)=   74
   Block.BarRight(14)=   90
   Block.BarTop(14)=   78
   Block.BarBottom(14)=   64
   Block.BorderStyle(14)=   2
   Block.OnTop(14) =   -1  'True
   Block.Color(14) =   &H000000E0&
   Block.Text(14)  =   "LIVE"
   Block.TextColor(14)=   &H00FFFFFF&
   BeginProperty Block.TextFont(14) {0BE35203-8F91-11CE-9DE3-00AA004BB851}
      Name            =   "Tahoma"
      Size            =   9
      Charset         =   0
      Weight          =   700
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   Block.TextFont3D(14)=   2
   Block.BarLeft(15)=   0
   Block.BarRight(15)=   100
   Block.BarTop(15)=   24
   Block.BarBottom(15)=   3
   Block.BrushStyle(15)=   2
   Block.BrushColor(15)=   &H00383838&
   Block.Color(15) =   &H00202020&
   Block.Text(15)  =   "drive D: !disk free:d! bytes free "
   Block.TextColor(15)=   &H00FFFFFF&
   Block.TextAlignment(15)=   2
   BeginProperty Block.TextFont(15) {0BE35203-8F91-11CE-9DE3-00AA004BB851}
      Name            =   "Tahoma"
      Size            =   8
      Charset         =   0
      Weight          =   400
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   Block.BarLeft(16)=   0
   Block.BarRight(16)=   0
   Block.BarTop(16)=   24
   Block.BarBottom(16)=   3
   Block.BorderStyle(16)=   2
   Block.Color(16) =   &H0000C000&
   Block.GradientStyle(16)=   1
   Block.GradientColor(16)=   &H0000C000&
   Block.GradientColorEnd(16)=   &H0000A0FF&
   Block.Text(16)  =   "!show horizontal ratio used:d!"
   BeginProperty Block.TextFont(16) {0BE35203-8F91-11CE-9DE3-00AA004BB851}
      Name            =   "Tahoma"
      Size            =   8
      Charset         =   0
      Weight          =   700
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   Height          =   1800
   Width           =   7200
   BackColor       =   &H00402010&
   ForeColor       =   &H00FFC040&
   BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851}
      Name            =   "Tahoma"
      Size            =   8
      Charset         =   0
      Weight          =   700
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   BorderStyle     =   6
   BorderWidth     =   2
   Caption         =   "VORLEX  live bar control"
   CaptionAlignment=   4
   CaptionOffset   =   1
   CaptionFont3D   =   3
   TimerTimeEnabled=   -1  'True
   RivetsStyle     =   3
   GradientStyle   =   3
   GradientColor   =   &H00504030&
End
