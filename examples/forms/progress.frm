VERSION 5.00
Begin VorlexLib.Vorlex Progress
   Blocks          =   1
   Block.Key(1)    =   "done"
   Block.BarLeft(1)=   0
   Block.BarRight(1)=   62
   Block.HPercentage(1)=   "62"
   Block.VPercentage(1)=   "100"
   Block.GradientStyle(1)=   1
   Block.GradientColor(1)=   &H00008000&
   Block.GradientColorEnd(1)=   &H0040FF40&
   Block.Text(1)   =   "!h%!"
   Block.TextColor(1)=   &H00FFFFFF&
   BeginProperty Block.TextFont(1) {0BE35203-8F91-11CE-9DE3-00AA004BB851}
      Name            =   "MS Sans Serif"
      Size            =   8.25
      Charset         =   0
      Weight          =   400
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   Block.TextFont3D(1)=   3
   Height          =   420
   Width           =   4500
   BackColor       =   &H00202020&
   BorderWidth     =   2
   BrushStyle      =   4
   BrushColor      =   &H00303030&
End
